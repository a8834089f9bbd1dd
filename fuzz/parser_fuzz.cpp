// Fuzzes the script language: whatever bytes a file holds, reading it neither crashes nor hangs, and the tokeniser's
// fast path agrees with the grammar on each line.
#include "game_plugin/scenario/language/ScriptParser.h"
#include "game_plugin/scenario/language/ScriptTokenizer.h"
#include "game_plugin/scenario/records/Records.h"

#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

/// A host that swallows messages: faulty lines are the rule here.
struct SilentHost {
  qsf::Qsf qsf;
  SilentHost() { qsf.getLogSystem().setThreshold(qsf::LogSystem::NONE + 1); }
};

void compareTokenizers(const std::string& line) {
  script::Tokens fast;
  if (!script::tokenizeFast(line, fast)) return; // the fast path leaves this line to the grammar
  if (fast == script::tokenizeByGrammar(line)) return;
  std::fprintf(stderr, "the fast path and the grammar differ on: %s\n", line.c_str());
  std::abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static auto& host = *new SilentHost;
  (void)host;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::unique_ptr<script::ScriptDocument> document(script::ScriptParser().parseText(text, "fuzz", "fuzz/script"));
  if (!document) std::abort();

  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    compareTokenizers(std::string(text.substr(begin, end - begin)));
    begin = end + 1;
  }
  return 0;
}
