#pragma once
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/action/ActionComponent.h"
#include "qsf/map/Entity.h"

namespace script {

// What effects have in common that put actions on the plans of entities.

/// The entity's action component, which is made if there is none.
inline qsf::ActionComponent& actionsOf(qsf::Entity& entity) {
  return *entity.getOrCreateComponent<qsf::ActionComponent>();
}

/// The mode of a raw word; an unknown one appends.
inline qsf::action::InsertionMode insertionModeOf(const Argument& word) {
  return static_cast<qsf::action::InsertionMode>(ToPlanMode(word.text()));
}

/// The priority of a number argument, without its fraction.
inline unsigned int resolvePriority(ScenarioHandler& handler, const Argument& number) {
  return static_cast<unsigned int>(truncateToInt(handler.ResolveFloat(number)));
}

/// The span of a number argument, which counts seconds.
inline qsf::Time resolveTime(ScenarioHandler& handler, const Argument& number) {
  return qsf::Time::fromSeconds(static_cast<double>(handler.ResolveFloat(number)));
}

}
