#include "game_plugin/scenario/tick/ScenarioConditions.h"

namespace script {

EMPTY_CONDITION_GROUP(MPConditions)

}
