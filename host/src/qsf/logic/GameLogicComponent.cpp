#include "qsf/logic/GameLogicComponent.h"

#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace qsf {

namespace {

bool isOfType(const GameLogic& gameLogic, StringHash typeId) {
  return StringHash(gameLogic.getCampClass().name()) == typeId;
}

}

static const DeclaredClass<GameLogic> gameLogicClass;

void GameLogic::declareCamp() { camp::Class::declare<GameLogic>("qsf::GameLogic").base<Object>(); }

static const DeclaredClass<GameLogicComponent> declared;

void GameLogicComponent::declareCamp() {
  camp::Class::declare<GameLogicComponent>("qsf::GameLogicComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("GameLogics", &GameLogicComponent::getNames, &GameLogicComponent::setNames);
}

GameLogic* GameLogicComponent::createGameLogicByTypeId(StringHash typeId) {
  if (GameLogic* present = getGameLogicByTypeId(typeId)) return present;
  std::unique_ptr<GameLogic> made = ClassRegistry::createObject<GameLogic>(typeId);
  if (!made) {
    logMessage(LogSystem::ERROR, "There is no game logic \"" + toText(typeId) + "\"");
    return nullptr;
  }
  return mGameLogics.emplace_back(std::move(made)).get();
}

GameLogic* GameLogicComponent::getGameLogicByTypeId(StringHash typeId) const {
  const auto found = std::ranges::find_if(mGameLogics, [&](const auto& logic) { return isOfType(*logic, typeId); });
  return found == mGameLogics.end() ? nullptr : found->get();
}

void GameLogicComponent::deleteGameLogicByTypeId(StringHash typeId) {
  std::erase_if(mGameLogics, [&](const auto& logic) { return isOfType(*logic, typeId); });
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
  mGameLogics = std::move(made);
}

}
