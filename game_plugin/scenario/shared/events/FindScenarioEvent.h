#pragma once
#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

/// The ScenarioEvent of that unique id, the oldest of several, or null. The number is resolved anew for each event that
/// is looked at, so without events a variable of that name doesn't come to life.
ScenarioEvent* lookForScenarioEvent(ScenarioHandler& handler, const Argument& uniqueId);

/// The same for effects: what isn't found is logged.
ScenarioEvent* findScenarioEvent(ScenarioHandler& handler, const Argument& uniqueId);

/// The one that no script has claimed yet; its absence is logged, too.
ScenarioEvent* findUnclaimedScenarioEvent();

}
