#include "game_plugin/scenario/ScenarioConditions.h"

namespace script {

EMPTY_CONDITION_GROUP(ComponentsAndVariablesConditions)

}
