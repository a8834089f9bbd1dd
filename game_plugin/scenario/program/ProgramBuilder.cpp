#include "game_plugin/scenario/program/ProgramBuilder.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/syntax/ScriptText.h"

namespace script {

ProgramBuilder::ProgramBuilder(std::string path, std::string_view text, const ReadingHost& host)
    : mProgram(std::make_shared<Program>(std::move(path), text.size())), mHost(host) {
  mProgram->mWritesMarkAsUtf8 = syntax::ScriptText::isMultiByteUtf8(text);
  executionPoint.source = mProgram.get();
}

void ProgramBuilder::setLine(std::uint32_t line) { executionPoint.line = mLine = line; }

void ProgramBuilder::log(int severity, const std::string& message) {
  logMessage(severity, message);
  mProgram->mMessages.push_back({mLine, severity, message});
}

void ProgramBuilder::drop(std::uint32_t column, std::string reason) {
  mProgram->mDroppedLines.push_back({mLine, column, std::move(reason)});
}

std::shared_ptr<const Program> ProgramBuilder::finish() {
  mProgram->mTriggers.shrink_to_fit();
  mProgram->mMessages.shrink_to_fit();
  mProgram->mTexts.close();
  return std::move(mProgram);
}

std::shared_ptr<const Program> ProgramBuilder::fail(const std::string& message, const std::string& reason) {
  log(LOG_ERROR, message);
  auto empty = std::make_shared<Program>(mProgram->path(), 0);
  empty->mWritesMarkAsUtf8 = mProgram->mWritesMarkAsUtf8;
  empty->mMessages = std::move(mProgram->mMessages);
  empty->mDroppedLines = std::move(mProgram->mDroppedLines);
  empty->mDroppedLines.push_back({mLine, 1, reason});
  empty->mFailed = true;
  return empty;
}

}
