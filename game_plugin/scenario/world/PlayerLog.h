#pragma once
#include <string>

namespace script {

/// Writes a line of the local player into the players' log of the map, whose component comes to be with the first line.
/// Nothing without a host.
void writeToPlayerLog(const std::string& text);

}
