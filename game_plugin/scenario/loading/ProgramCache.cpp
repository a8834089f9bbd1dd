#include "game_plugin/scenario/loading/ProgramCache.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/loading/RunningHost.h"
#include "game_plugin/scenario/loading/ScriptParser.h"

#include "qsf/Qsf.h"
#include "qsf/log/FaultCounter.h"

#include <functional>

namespace script {

namespace {

void tellAgain(const Program& program) {
  for (const Program::Message& message : program.messages()) {
    const ExecutionScope scope(&program, message.line);
    logMessage(message.severity, message.text);
  }
  const qsf::Qsf* host = qsf::Qsf::instance();
  if (program.hasFailed() && host) host->getFaultCounter().add(program.messages().back().text);
}

}

ProgramCache::Content ProgramCache::summarize(std::string_view text) {
  // Two hashes of different make: a clash of both is no matter of this world.
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text)
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return {text.size(), std::hash<std::string_view>()(text), hash, RunningHost().gamepad()};
}

void ProgramCache::forgetUnused() {
  if (--mLoadsUntilSweep > 0) return;
  std::erase_if(mEntries, [](const auto& entry) { return entry.second.program.expired(); });
  mLoadsUntilSweep = mEntries.size() + 1; // so that a sweep costs each load the same
}

std::shared_ptr<const Program> ProgramCache::load(const std::string& path, const std::string& globalNamePrefix) {
  forgetUnused();
  std::string text;
  if (!ScriptParser::readFile(path, text)) text.clear(); // silently: the manager has told of missing files
  const Content content = summarize(text);
  Entry& entry = mEntries[path + '\n' + globalNamePrefix];
  std::shared_ptr<const Program> program = entry.content == content ? entry.program.lock() : nullptr;
  if (program) {
    tellAgain(*program);
    return program;
  }
  program = ScriptParser().parseText(text, path, globalNamePrefix);
  entry = {content, program};
  if (program->droppedLines().empty())
    mDroppedLines.erase(path);
  else
    mDroppedLines[path] = program->droppedLines();
  return program;
}

}
