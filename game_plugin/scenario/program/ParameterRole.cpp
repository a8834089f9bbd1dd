#include "game_plugin/scenario/program/ParameterRole.h"

#include <array>
#include <cstddef>

namespace script {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(ParameterRole::COUNT)> NAMES = {
    "number",
    "variable in",
    "variable out",
    "variable in and out",
    "text",
    "name or text",
    "string variable in",
    "string variable out",
    "string variable in and out",
    "bool variable in",
    "bool variable out",
    "JSON variable in",
    "JSON variable out",
    "JSON variable in and out",
    "string list in",
    "string list out",
    "list in",
    "list out",
    "list in and out",
    "id",
    "trigger",
    "global trigger",
    "script path",
    "operator",
    "component",
    "property",
    "prefab",
    "map",
    "animation",
    "sound",
    "picture",
    "document",
    "element",
    "RML file",
    "file in",
    "file out",
    "key",
    "mouse button",
    "gamepad button",
    "gamepad direction",
    "command",
    "order info",
    "action",
    "event",
    "objective",
    "layer",
    "text id",
    "game action",
    "vector",
    "words",
    "flag",
    "integer",
    "decimal",
    "raw text",
    "unused",
};
static_assert(!NAMES.back().empty(), "each role has a name");

}

std::string_view nameOf(ParameterRole role) { return NAMES[static_cast<std::size_t>(role)]; }

}
