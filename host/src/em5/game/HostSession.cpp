#include "em5/game/HostSession.h"

#include "em5/application/Application.h"
#include "em5/base/GameLayer.h"
#include "em5/base/Messages.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/gui/HintHelper.h"
#include "em5/multiplayer/NetworkManager.h"
#include "em5/order/OrderInfoManager.h"
#include "em5/plugin/Plugin.h"
#include "em5/settings/GameDebugGroup.h"
#include "em5/settings/GameSettingsGroup.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/base/Random.h"
#include "qsf/editor/Application.h"
#include "qsf/input/InputSystem.h"
#include "qsf/job/JobManagers.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/plugin/PluginSystem.h"
#include "qsf/prototype/PrototypeManager.h"

#include <optional>
#include <stdexcept>

namespace em5 {

struct HostSession::Internals {
  explicit Internals(const Options& given) : options(given) {}

  Options options;
  // In the order of their making; they go in reverse.
  qsf::Qsf qsf;
  Application application;
  GameDebugGroup debugGroup;
  GameSettingsGroup settingsGroup;
  Plugin plugin;
  std::unique_ptr<EmergencyGui> emergencyGui;
  std::unique_ptr<qsf::editor::Application> editor;
  std::unique_ptr<Game> game;

  std::function<void(qsf::Map&)> mapPreparation;
  std::optional<std::string> requestedMap;
  std::string currentMap;
  GameModeType currentMode = GameModeType::FREEPLAY_ENDLESS;
  qsf::Time time;
  std::uint64_t frameCount = 0;
  bool gameRunning = false;
  bool applicationStarted = false;
  bool busy = false; ///< inside a frame, a start or an end: a wish has to wait

  bool isGame() const { return options.kind == Kind::GAME; }
  void emit(qsf::StringHash message) { qsf.getMessageSystem().emitMessage(qsf::MessageConfiguration(message)); }

  void start(const std::string& map);
  void end();
  void renewGame();
  void finishApplicationStartup();
  void dropGame();
  void switchMap(const std::string& map);
  void restoreConfiguration();
  void fulfilWishes();
  void frame(qsf::Time tick);
};

namespace {

/// Marks the session as busy for the length of a scope.
class BusyScope {
public:
  explicit BusyScope(bool& flag) : mFlag(flag), mBefore(flag) { flag = true; }
  ~BusyScope() { mFlag = mBefore; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

private:
  bool& mFlag;
  bool mBefore;
};

void loadUnits(Game& game) {
  game.getOrderInfoManager().load();
  for (Player* player : game.getPlayerManager()->getAllPlayers())
    player->getUnitPool().load("default_unitpool");
}

bool isMapAsset(const std::string& localAssetName) {
  const std::size_t slash = localAssetName.find('/');
  return slash != std::string::npos && localAssetName.compare(slash + 1, 4, "map/") == 0 &&
         qsf::AssetProxy(localAssetName).getAsset() != nullptr;
}

}

void HostSession::Internals::start(const std::string& map) {
  BusyScope scope(busy);
  try {
    qsf.getJobManagers().setPaused(false);
    if (game) loadUnits(*game);
    qsf.getMainMap().load(map);
    if (mapPreparation) mapPreparation(qsf.getMainMap());
    qsf.getMainMap().startup();
  } catch (...) {
    dropGame();
    throw;
  }
  GameSessionConfiguration& configuration = application.getGameSessionConfiguration();
  configuration.setMapIdentifier(MapIdentifier::fromLocalAssetName(map));
  currentMap = map;
  currentMode = configuration.getGameModeType();
  gameRunning = true;
  if (!isGame()) return;
  emergencyGui->startGame();
  plugin.getFreeplaySystem().startGame();
  plugin.getNetworkManager().startGame();
  emit(Messages::GAME_STARTUP_FINISHED);
}

void HostSession::Internals::end() {
  if (!gameRunning) return;
  BusyScope scope(busy);
  if (isGame()) {
    emit(Messages::GAME_SHUTDOWN_STARTING);
    plugin.getFreeplaySystem().stopGame();
    plugin.getNetworkManager().stopGame();
    HintHelper::clear();
  } else {
    editor->getSelectionSystem().clear();
    editor->getOperationManager().clear();
  }
  gameRunning = false;
  dropGame();
}

/// A game program always has a game; between maps it is a fresh one that nobody plays.
void HostSession::Internals::renewGame() {
  if (!isGame()) return;
  game.reset();
  game = std::make_unique<Game>();
  for (unsigned int index = 1; index < options.players; ++index)
    game->getPlayerManager()->addPlayer(index);
  game->getPlayerManager()->setLocalPlayer(options.localPlayer);
}

/// Once, when the plug-ins stand and before the first game.
void HostSession::Internals::finishApplicationStartup() {
  if (applicationStarted || !isGame()) return;
  applicationStarted = true;
  emit(Messages::APPLICATION_STARTUP_FINISHED);
}

void HostSession::Internals::dropGame() {
  // The map goes first: its components may ask for the game until they are gone.
  qsf.getMainMap().clear();
  qsf.getAudioSystem().getAudioManager().stopAll();
  renewGame();
}

void HostSession::Internals::switchMap(const std::string& map) {
  if (!isMapAsset(map)) {
    qsf::logMessage(qsf::LogSystem::ERROR, "There is no map \"" + map + "\"; the game goes on");
    if (gameRunning) restoreConfiguration();
    return;
  }
  try {
    end();
    start(map);
  } catch (const std::exception& exception) {
    qsf::logMessage(qsf::LogSystem::ERROR,
                    std::string("The game has ended, its next map cannot be started: ") + exception.what());
  }
}

/// What was configured for a game that can't be started is forgotten: others ask here what is played.
void HostSession::Internals::restoreConfiguration() {
  GameSessionConfiguration& configuration = application.getGameSessionConfiguration();
  configuration.setMapIdentifier(MapIdentifier::fromLocalAssetName(currentMap));
  configuration.setGameModeType(currentMode);
}

void HostSession::Internals::fulfilWishes() {
  const Application::Wishes wishes = application.takeWishes();
  if (wishes.startGame) requestedMap = application.getGameSessionConfiguration().getMapIdentifier().getLocalAssetName();
  if (wishes.endGame && !wishes.startGame) end();
  if (!requestedMap) return;
  const std::string map = *requestedMap;
  requestedMap.reset();
  switchMap(map);
}

void HostSession::Internals::frame(qsf::Time tick) {
  BusyScope scope(busy);
  qsf.getInputSystem().deliverEvents();
  HintHelper::update(tick);
  plugin.getNetworkManager().receive();
  qsf.getJobManagers().runFrame(tick);
  if (game) game->getSelectionManager()->dropDestroyedEntities();
  qsf.getMainMap().collectGarbage();
  qsf.getInputSystem().endFrame();
  plugin.getNetworkManager().finishFrame(tick);
  time += tick;
  ++frameCount;
}

HostSession::HostSession(const Options& options) {
  if (qsf::Qsf::instance()) throw std::logic_error("there is a running host already");
  mInternals = std::make_unique<Internals>(options);
  addGameLayer(mInternals->qsf);
  qsf::Random::setSeed(options.seed);
  Internals& internals = *mInternals;
  internals.qsf.getLogSystem().setThreshold(options.logThreshold);
  internals.qsf.getLocalizationSystem().setStartLanguage(options.language);
  internals.application.getGameSessionConfiguration().setGameModeType(options.gameMode);
  internals.settingsGroup.setSavedAccountname(options.account);
  internals.qsf.getMainMap().setSpawnListener([&internals](const qsf::Entity& entity) {
    if (internals.gameRunning && internals.isGame())
      internals.qsf.getMessageSystem().emitMessage(
          qsf::MessageConfiguration(Messages::EM5_SPAWN_ENTITY, entity.getId()));
  });
}

HostSession::~HostSession() {
  Internals& internals = *mInternals;
  internals.end();
  internals.plugin.getNetworkManager().endSession(); // its handlers are the plug-ins'
  // Plug-ins hold windows on the GUI and listeners at the host: they go before both. Prefabs hold components of theirs.
  internals.qsf.getMainPrototypeManager().clear();
  internals.qsf.getPluginSystem().unloadPlugins();
  HintHelper::clear();
}

qsf::Qsf& HostSession::getQsf() const { return mInternals->qsf; }

const HostSession::Options& HostSession::getOptions() const { return mInternals->options; }

void HostSession::mountBaseProject(const std::string& directory) {
  mInternals->qsf.getProjectManager().registerSingleProjectFromFileSystem(directory);
}

Mod& HostSession::mountMod(const std::string& directory, ModState state) {
  return mInternals->plugin.getModSystem().addMod(directory, state);
}

void HostSession::startup() {
  if (mInternals->isGame()) {
    if (mInternals->emergencyGui) return;
    mInternals->qsf.getLocalizationSystem().reload();
    mInternals->emergencyGui = std::make_unique<EmergencyGui>();
    mInternals->renewGame();
  } else if (!mInternals->editor) {
    mInternals->qsf.getLocalizationSystem().reload();
    mInternals->editor = std::make_unique<qsf::editor::Application>();
  }
}

bool HostSession::loadPlugin(const std::string& libraryPath) {
  startup();
  return mInternals->qsf.getPluginSystem().loadPlugin(libraryPath) != nullptr;
}

void HostSession::setMapPreparation(std::function<void(qsf::Map&)> preparation) {
  mInternals->mapPreparation = std::move(preparation);
}

multiplayer::SessionBase& HostSession::createSession(std::unique_ptr<multiplayer::Transport> transport,
                                                     const std::vector<std::uint8_t>& others) {
  startup();
  mInternals->finishApplicationStartup();
  return mInternals->plugin.getNetworkManager().createSession(
      static_cast<std::uint8_t>(mInternals->options.localPlayer), std::move(transport), others);
}

NetworkManager& HostSession::getNetworkManager() const { return mInternals->plugin.getNetworkManager(); }

void HostSession::startGame(const std::string& mapLocalAssetName) {
  startup();
  mInternals->finishApplicationStartup();
  mInternals->end();
  mInternals->start(mapLocalAssetName);
}

void HostSession::endGame() { mInternals->end(); }

bool HostSession::isGameRunning() const { return mInternals->gameRunning; }

void HostSession::runFrame(qsf::Time tick) {
  mInternals->frame(tick < qsf::Time() ? qsf::Time() : tick);
  mInternals->fulfilWishes();
}

void HostSession::setPaused(bool paused) { mInternals->qsf.getJobManagers().setPaused(paused); }

bool HostSession::isPaused() const { return mInternals->qsf.getJobManagers().isPaused(); }

void HostSession::requestMap(const std::string& mapLocalAssetName) {
  mInternals->requestedMap = mapLocalAssetName;
  if (!mInternals->busy) mInternals->fulfilWishes();
}

void HostSession::requestRestart() {
  if (mInternals->gameRunning) requestMap(mInternals->currentMap);
}

qsf::Time HostSession::getTime() const { return mInternals->time; }

std::uint64_t HostSession::getFrameCount() const { return mInternals->frameCount; }

}
