// Fuzzes the script language: whatever bytes a file holds, reading it neither crashes nor hangs.
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "game_plugin/scenario/program/Program.h"

#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

#include <cstdlib>
#include <string_view>

namespace {

/// A host that swallows messages: faulty lines are the rule here.
struct SilentHost {
  qsf::Qsf qsf;
  SilentHost() { qsf.getLogSystem().setThreshold(qsf::LogSystem::NONE + 1); }
};

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static auto& host = *new SilentHost;
  (void)host;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (!script::ScriptParser().parseText(text, "fuzz", "fuzz/script")) std::abort();

  return 0;
}
