#pragma once
#include "game_plugin/scenario/language/WordTable.h"

#include "em5/freeplay/Objective.h"

namespace script {

/// How scripts name the kinds of objectives; any other text means one that is required.
inline constexpr Word<em5::ObjectiveType> OBJECTIVE_KINDS[] = {
    {"REQUIRED", em5::OBJECTIVE_REQUIRED}, {"OPTIONAL", em5::OBJECTIVE_OPTIONAL}, {"FAIL", em5::OBJECTIVE_FAIL}};

}
