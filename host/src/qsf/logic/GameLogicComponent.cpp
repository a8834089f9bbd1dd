#include "qsf/logic/GameLogicComponent.h"

#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace qsf {

namespace {

bool isOfType(const GameLogic& gameLogic, StringHash typeId) {
  return StringHash(gameLogic.getCampClass().name()) == typeId;
}

template <class Logics> GameLogic* findOfType(const Logics& logics, StringHash typeId) {
  const auto found = std::ranges::find_if(logics, [&](const auto& logic) { return isOfType(*logic, typeId); });
  return found == logics.end() ? nullptr : found->get();
}

}

static const DeclaredClass<GameLogic> gameLogicClass;

void GameLogic::declareCamp() { camp::Class::declare<GameLogic>("qsf::GameLogic").base<Object>(); }

Entity* GameLogic::findEntity() const { return mComponent ? mComponent->findEntity() : nullptr; }

static const DeclaredClass<GameLogicComponent> declared;

void GameLogicComponent::declareCamp() {
  camp::Class::declare<GameLogicComponent>("qsf::GameLogicComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("GameLogics", &GameLogicComponent::getNames, &GameLogicComponent::setNames);
}

GameLogicComponent::~GameLogicComponent() = default;

bool GameLogicComponent::onStartup() {
  // By index: a logic that starts may add another one.
  std::size_t next = 0;
  while (next < mGameLogics.size())
    start(*mGameLogics[next++]);
  return true;
}

void GameLogicComponent::onShutdown() {
  for (const auto& logic : mGameLogics)
    stop(*logic);
}

void GameLogicComponent::start(GameLogic& logic) const {
  logic.mComponent = this;
  if (!std::exchange(logic.mStarted, true)) logic.onStartup();
}

void GameLogicComponent::stop(GameLogic& logic) {
  if (std::exchange(logic.mStarted, false)) logic.onShutdown();
}

GameLogic* GameLogicComponent::createGameLogicByTypeId(StringHash typeId) {
  if (GameLogic* present = findOfType(mGameLogics, typeId)) return present;
  std::unique_ptr<GameLogic> made = ClassRegistry::createObject<GameLogic>(typeId);
  if (!made) {
    logMessage(LogSystem::ERROR, "There is no game logic \"" + toText(typeId) + "\"");
    return nullptr;
  }
  GameLogic& logic = *mGameLogics.emplace_back(std::move(made));
  logic.mComponent = this;
  if (isRunning()) start(logic);
  return &logic;
}

GameLogic* GameLogicComponent::getGameLogicByTypeId(StringHash typeId) const {
  const camp::Class* wanted = ClassRegistry::findClass(typeId);
  if (!wanted) return findOfType(mGameLogics, typeId);
  const auto found = std::ranges::find_if(
      mGameLogics, [&](const auto& logic) { return ClassRegistry::isOrDerivesFrom(logic->getCampClass(), *wanted); });
  return found == mGameLogics.end() ? nullptr : found->get();
}

void GameLogicComponent::deleteGameLogicByTypeId(StringHash typeId) {
  const auto found = std::ranges::find_if(mGameLogics, [&](const auto& logic) { return isOfType(*logic, typeId); });
  if (found == mGameLogics.end()) return;
  const std::unique_ptr<GameLogic> deleted = std::move(*found);
  mGameLogics.erase(found);
  stop(*deleted);
}

std::string GameLogicComponent::getNames() const {
  std::string names;
  for (const auto& logic : mGameLogics)
    names += (names.empty() ? "" : " ") + logic->getCampClass().name();
  return names;
}

void GameLogicComponent::setNames(const std::string& names) {
  std::vector<std::unique_ptr<GameLogic>> made;
  std::istringstream words(names);
  for (std::string name; words >> name;) {
    const StringHash typeId(name);
    if (std::ranges::any_of(made, [&](const auto& logic) { return isOfType(*logic, typeId); })) continue;
    made.push_back(ClassRegistry::createObject<GameLogic>(typeId));
    if (!made.back()) throw std::invalid_argument("\"" + name + "\" is no game logic");
  }
  // Those that stay keep their state.
  for (auto& logic : made)
    for (auto& present : mGameLogics)
      if (present && isOfType(*present, StringHash(logic->getCampClass().name()))) logic = std::move(present);
  std::swap(mGameLogics, made);
  for (const auto& left : made)
    if (left) stop(*left);
  for (const auto& logic : mGameLogics)
    logic->mComponent = this;
  if (isRunning()) onStartup();
}

}
