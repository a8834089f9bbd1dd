// Fuzzes the tokeniser: on each line its fast path gives the words that the grammar gives, or leaves the line to it.
#include "game_plugin/syntax/ScriptTokenizer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

bool haveSameTexts(const script::syntax::Tokens& a, const script::syntax::Tokens& b) {
  return std::ranges::equal(a, b, [](const auto& left, const auto& right) {
    return left.text == right.text && left.begin == right.begin && left.end == right.end;
  });
}

void compareTokenizers(std::string_view line) {
  static script::syntax::Tokens fast, exact;
  static std::string storage;
  if (!script::syntax::tokenizeFast(line, fast)) return; // the fast path leaves this line to the grammar
  if (script::syntax::tokenizeByGrammar(line, exact, storage) && haveSameTexts(fast, exact)) return;
  std::fprintf(stderr, "the fast path and the grammar differ on: %s\n", std::string(line).c_str());
  std::abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    compareTokenizers(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return 0;
}
