#include "game_plugin/component/MP_LOG_COMPONENT.h"

#include "game_plugin/multiplayer/MP_LOG_Handler.h"
#include "game_plugin/plugin/ModuleFolder.h"
#include "game_plugin/scenario/Log.h"

#include "em5/game/Game.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <optional>

namespace script {

namespace {

constexpr std::size_t MOST_LINES = 21; // so that the debugger's windows stay small
constexpr const char* PLAYER_FILES[] = {"tidemark/Player1.txt", "tidemark/Player2.txt", "tidemark/Player3.txt",
                                        "tidemark/Player4.txt"};
constexpr const char* MIXED_FILE = "tidemark/Player Mixed.txt";

std::optional<std::filesystem::path>& chosenFolder() {
  static std::optional<std::filesystem::path> folder;
  return folder;
}

void emptyFile(const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::create_directories(file.parent_path(), ignored);
  std::ofstream(file, std::ios::trunc);
}

std::string withTime(const std::string& text) {
  char time[80] = {};
  const std::time_t now = std::time(nullptr);
  if (const std::tm* local = std::localtime(&now)) std::strftime(time, sizeof(time), "[%T]: ", local);
  return time + text + '\n';
}

/// Nothing without a game.
std::optional<int> localPlayer() {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game) return std::nullopt;
  return static_cast<int>(game->getPlayerManager()->getLocalPlayer()->getPlayerIndex());
}

/// To the machines of a session.
void tellOthers(const std::string& text, int player) {
  const multiplayer::MP_LOG_Handler* handler = multiplayer::MP_LOG_Handler::get();
  if (!handler) return;
  if (player != 0)
    handler->sendLogToHost(text, static_cast<std::uint8_t>(player));
  else
    handler->sendLogFromHost(text, 0);
}

}

MP_LOG_COMPONENT::MP_LOG_COMPONENT(qsf::Prototype* prototype)
    : Component(prototype), mFolder(chosenFolder().value_or(moduleFolder())) {
  logInfo("MP Log Component is located here " + mFolder.string());
  for (const char* file : PLAYER_FILES)
    emptyFile(mFolder / file);
  emptyFile(mFolder / MIXED_FILE);
}

void MP_LOG_COMPONENT::setFolder(const std::filesystem::path& folder) { chosenFolder() = folder; }

void MP_LOG_COMPONENT::declareCamp() {
  using Log = MP_LOG_COMPONENT;
  constexpr const char* ARRIVES = "Incoming Messages from that player arrives here";
  camp::Class::declare<Log>("script::MP_LOG_COMPONENT")
      .tag("Name", "script::MP_LOG_COMPONENT")
      .tag("Description", "A component that is a alternative to the existing log and can communicate over MP")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Incoming Message", &Log::getIncomingMessage, &Log::setIncomingMessage)
      .tag("Description", "Access this camp property to write a log property")
      .property("Player 1", &Log::mPlayer1)
      .tag("Description", ARRIVES)
      .property("Player 2", &Log::mPlayer2)
      .tag("Description", ARRIVES)
      .property("Player 3", &Log::mPlayer3)
      .tag("Description", ARRIVES)
      .property("Player 4", &Log::mPlayer4)
      .tag("Description", ARRIVES)
      .property("Mixed Players", &Log::mMixed)
      .tag("Description", ARRIVES);
}

bool MP_LOG_COMPONENT::onStartup() {
  if (getEntityId() != qsf::Map::CORE_ENTITY_ID)
    logError("This Component shall only be attached to the Main entity (id = 0)");
  return true;
}

void MP_LOG_COMPONENT::setIncomingMessage(const std::string& text) {
  if (!text.empty()) addLogEntry(text, LOCAL_PLAYER);
}

void MP_LOG_COMPONENT::addLogEntry(const std::string& text, int player) {
  const bool isOwn = player == LOCAL_PLAYER;
  if (isOwn) player = localPlayer().value_or(player);
  Lines* const lists[] = {&mPlayer1, &mPlayer2, &mPlayer3, &mPlayer4};
  if (player >= 0 && player < static_cast<int>(std::size(lists))) append(*lists[player], PLAYER_FILES[player], text);
  append(mMixed, MIXED_FILE, "Player ->" + std::to_string(player) + ": " + text);
  if (isOwn) tellOthers(text, player);
}

const std::vector<std::string>& MP_LOG_COMPONENT::getLines(int player) const {
  const Lines* const lists[] = {&mPlayer1, &mPlayer2, &mPlayer3, &mPlayer4};
  return *lists[std::clamp(player, 0, NUMBER_OF_PLAYERS - 1)];
}

void MP_LOG_COMPONENT::append(Lines& list, const char* file, const std::string& text) {
  if (list.size() >= MOST_LINES) list.erase(list.begin());
  list.push_back(withTime(text));
  std::ofstream(mFolder / file, std::ios::app) << list.back();
}

}
