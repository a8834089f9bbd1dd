#include "game_plugin/scenario/ScenarioEffects.h"

namespace script {

EMPTY_EFFECT_GROUP(ScenarioEffects_Editor)

}
