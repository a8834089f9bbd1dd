#pragma once
#include "game_plugin/scenario/program/Program.h"

#include <cstdint>
#include <string>

namespace script {

/// How the log names a line whose entry has thrown: "mod/day.script, line 12, ReadJson".
std::string describeFaultyLine(const Program& program, std::uint32_t line);

}
