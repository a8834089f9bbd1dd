#pragma once
#include "game_plugin/scenario/records/CatalogueEntry.h"

#include <string>
#include <string_view>

namespace script {

/// Reads one line by the language's grammar. Empty if the line is no command. The skipper works between all characters
/// outside quotes, and a bare argument that begins with `s` is doubled by as much of "svar(" as it matches: scripts
/// have lived with both.
Tokens tokenizeByGrammar(std::string_view line);

/// Reads the common shapes of a line without the grammar's cost, into `tokens`. False if the line needs the grammar to
/// decide what it means; `tokens` is then unspecified. Where it answers true, the grammar gives the same.
bool tokenizeFast(std::string_view line, Tokens& tokens);

}
