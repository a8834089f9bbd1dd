#include "game_plugin/scenario/program/EntryGroup.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script {

EMPTY_EFFECT_GROUP(PositionAndRotationEffects)

}
