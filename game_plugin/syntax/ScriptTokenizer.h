#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace script::syntax {

/// One word of a command: its name or a parameter, as later stages see it, and where it was written.
struct Token {
  std::string_view text;   ///< without quotes; a view into the line, or into the storage of the grammar
  std::uint32_t begin = 0; ///< offset in the line of the first byte as written, quotes included
  std::uint32_t end = 0;   ///< offset behind the last one
};

using Tokens = std::vector<Token>;

/// Reads one line by the language's grammar into `tokens`, whose texts are views into `storage`. False if the line is
/// no command. The skipper works between all characters outside quotes, and a bare argument that begins with `s` is
/// doubled by as much of "svar(" as it matches: scripts have lived with both.
bool tokenizeByGrammar(std::string_view line, Tokens& tokens, std::string& storage);

/// Reads the common shapes of a line without the grammar's cost; texts are views into the line. False if the line needs
/// the grammar to decide what it means; `tokens` is then unspecified. Where it answers true, the grammar gives the
/// same.
bool tokenizeFast(std::string_view line, Tokens& tokens);

/// Splits at commas outside double quotes and drops the quotes. A text at the end is dropped if it is empty. The views
/// point into the text, which loses its quotes.
std::vector<std::string_view> splitArguments(std::string& text);

/// The words of one line as texts of their own; empty if the line is no command.
std::vector<std::string> tokenize(std::string_view line);

}
