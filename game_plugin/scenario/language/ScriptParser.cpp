#include "game_plugin/scenario/language/ScriptParser.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioConditions.h"
#include "game_plugin/scenario/ScenarioEffects.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/language/ScriptTokenizer.h"

#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/log/FaultCounter.h"

#include <fstream>
#include <memory>
#include <stdexcept>

namespace script {

namespace {

std::uint32_t toMultiplayerMode(std::string_view text) {
  return text == "MP_GUI_Sync" ? 1 : text == "MP_Run_Independend" ? 2 : 0;
}

/// True for well-formed UTF-8 that holds a character of more than one byte.
bool isUtf8WithMultiByte(std::string_view text) {
  bool hasMultiByte = false;
  for (std::size_t i = 0; i < text.size();) {
    const unsigned char lead = static_cast<unsigned char>(text[i]);
    const std::size_t length = lead < 0x80                    ? 1
                               : lead >= 0xC2 && lead <= 0xDF ? 2
                               : (lead & 0xF0) == 0xE0        ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    if (length == 0 || i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k)
      if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
    // Longer forms than needed, surrogates and what lies behind the last code point are no UTF-8.
    if (length > 2) {
      const unsigned char next = static_cast<unsigned char>(text[i + 1]);
      if ((lead == 0xE0 && next < 0xA0) || (lead == 0xED && next > 0x9F) || (lead == 0xF0 && next < 0x90) ||
          (lead == 0xF4 && next > 0x8F))
        return false;
    }
    hasMultiByte |= length > 1;
    i += length;
  }
  return hasMultiByte;
}

/// The state of one load: the line loop and what it has read so far.
class ScriptReader {
public:
  ScriptReader(ScriptDocument& document, const std::string& globalNamePrefix)
      : mDocument(document), mPrefix(globalNamePrefix) {}

  void readLines(std::string_view text) {
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      std::string_view line = text.substr(0, end);
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
      if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
      ++mLine;
      readLine(line);
    }
  }

  void finish() {
    closeTrigger();
    mDocument.triggers.shrink_to_fit();
  }

  std::uint32_t line() const { return mLine; }

private:
  void readLine(std::string_view line) {
    if (line.find_first_of("\t{}$") != std::string_view::npos) {
      // Tabs and braces are decoration wherever they stand; a `$` makes the whole line a comment.
      mClean.clear();
      for (const char c : line)
        if (c != '\t' && c != '{' && c != '}') mClean.push_back(c);
      line = mClean;
      if (line.find('$') != std::string_view::npos) return;
    }
    if (line.empty()) return;
    if (!tokenizeFast(line, mTokens)) mTokens = tokenizeByGrammar(line);
    if (!mTokens.empty())
      dispatch();
    else if (line.find_first_not_of(" \t\n\v\f\r") != std::string_view::npos)
      logInfo("Command is invalid: " + std::string(line));
  }

  void dispatch() {
    std::string& name = mTokens[0];
    const bool negated = name[0] == '!';
    if (negated) name.erase(0, 1);

    if (name == "InitNewTrigger")
      beginTrigger();
    else if (name == "InitConditions")
      beginConditions();
    else if (name == "InitEffects" || name == "InitNegativEffects")
      mReadingConditions = false; // negative effects are effects like the others: that is how they have always run
    else if (name == "If")
      beginBlock();
    else if (name == "Else")
      mInElse = true;
    else if (mInBlock && name == "Then")
      mReadingConditions = false;
    else if (mInBlock && name == "ThenEnd")
      mInBlock = mReadingConditions = false;
    else if (mReadingConditions)
      readCondition(negated);
    else
      readEffect();
  }

  void beginTrigger() {
    closeTrigger();
    ScenarioTrigger trigger;
    const std::string_view name = readStringParameter(mTokens, 1, "Trigger_1", "TriggerName", "");
    trigger.globalName = RecordArena::store(mPrefix, "/", name);
    trigger.name = trigger.globalName.substr(mPrefix.size() + 1);
    trigger.active = trigger.initialActive = readBoolParameter(mTokens, 2, true, "Active", "");
    trigger.looped = trigger.initialLooped = readBoolParameter(mTokens, 3, false, "Looped", "");
    trigger.multiplayerMode =
        toMultiplayerMode(readStringParameter(mTokens, 4, "MP_Trigger_Runs_On_Hostside", "MultiplayerMode", ""));
    trigger.line = mLine;
    const qsf::StringHash hash(trigger.globalName);
    trigger.globalNameHash = hash.getHash();
    if (const qsf::Qsf* host = qsf::Qsf::instance())
      host->getStringHashManager().registerStringHash(hash, trigger.globalName);
    mDocument.triggers.push_back(std::move(trigger));
    mInBlock = false;
    // The section stays: only the first trigger of a file begins in its conditions.
  }

  /// Gives the last trigger what its lines have made. Until then they are collected here, so that the lists take no
  /// more memory than they need.
  void closeTrigger() {
    if (mDocument.triggers.empty()) return;
    closeBlock();
    ScenarioTrigger& trigger = mDocument.triggers.back();
    trigger.conditions = Conditions(mTriggerConditions);
    trigger.effects = Effects(mTriggerEffects);
    trigger.conditionalBlocks = RecordList<ConditionalBlock>(mBlocks);
    mTriggerConditions.clear();
    mTriggerEffects.clear();
    mBlocks.clear();
    // A count above the number of conditions stays, and such a trigger never fires; scripts park triggers that way.
    if (trigger.requiredConditions <= 0)
      trigger.requiredConditions = static_cast<std::int32_t>(trigger.conditions.size());
  }

  void closeBlock() {
    if (mBlocks.empty()) return;
    ConditionalBlock& block = *mBlocks.back();
    block.conditions = Conditions(mBlockConditions);
    block.thenEffects = Effects(mThenEffects);
    block.elseEffects = Effects(mElseEffects);
    mBlockConditions.clear();
    mThenEffects.clear();
    mElseEffects.clear();
  }

  void beginConditions() {
    if (mTokens.size() > 1 && !mTokens[1].empty()) {
      const int count = readIntParameter(mTokens, 1, -1, "", "");
      if (count != -1) {
        checkTrigger();
        mDocument.triggers.back().requiredConditions = count;
      }
    }
    mReadingConditions = true;
  }

  void beginBlock() {
    checkTrigger();
    closeBlock();
    mInBlock = mReadingConditions = true;
    mInElse = false;
    mBlocks.push_back(RecordArena::create<ConditionalBlock>());
    const Tokens tokens{"UseConditionalBlock", std::to_string(mDocument.triggers.size() - 1),
                        std::to_string(mBlocks.size() - 1)};
    if (DefaultEffect* effect = mEffects.create(tokens)) {
      effect->line = mLine;
      mTriggerEffects.push_back(effect);
    }
  }

  void readCondition(bool negated) {
    DefaultCondition* condition = mConditions.create(mTokens);
    if (!condition) return;
    checkTrigger();
    condition->line = mLine;
    condition->expected = !negated;
    (mInBlock ? mBlockConditions : mTriggerConditions).push_back(condition);
  }

  void readEffect() {
    DefaultEffect* effect = mEffects.create(mTokens);
    if (!effect) return;
    checkTrigger();
    effect->line = mLine;
    (!mInBlock ? mTriggerEffects : mInElse ? mElseEffects : mThenEffects).push_back(effect);
  }

  /// What a line makes belongs to the last trigger; without one the script can't be used.
  void checkTrigger() const {
    if (mDocument.triggers.empty()) throw std::out_of_range("invalid vector<T> subscript");
  }

  ScriptDocument& mDocument;
  const std::string& mPrefix;
  ScenarioConditions mConditions{nullptr};
  ScenarioEffects mEffects{nullptr};
  std::vector<DefaultCondition*> mTriggerConditions, mBlockConditions;
  std::vector<DefaultEffect*> mTriggerEffects, mThenEffects, mElseEffects;
  std::vector<ConditionalBlock*> mBlocks; ///< of the last trigger
  Tokens mTokens;
  std::string mClean;
  std::uint32_t mLine = 0;
  bool mReadingConditions = true;
  bool mInBlock = false;
  bool mInElse = false;
};

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

/// The file's bytes; false if it can't be opened.
bool readFile(const std::string& path, std::string& text) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return false;
  char buffer[64 * 1024];
  while (file.read(buffer, sizeof buffer) || file.gcount() > 0)
    text.append(buffer, static_cast<std::size_t>(file.gcount()));
  return true;
}

}

ScriptDocument* ScriptParser::parse(const std::string& path, const std::string& globalNamePrefix) const {
  std::string text;
  if (!readFile(path, text)) return new ScriptDocument; // silently: the manager has told of missing files
  return parseText(text, path, globalNamePrefix);
}

ScriptDocument* ScriptParser::parseText(std::string_view text, const std::string& name,
                                        const std::string& globalNamePrefix) const {
  auto document = std::make_unique<ScriptDocument>();
  document->writesMarkAsUtf8 = isUtf8WithMultiByte(text); // a byte order mark is such a character
  if (text.substr(0, BYTE_ORDER_MARK.size()) == BYTE_ORDER_MARK) text.remove_prefix(BYTE_ORDER_MARK.size());
  ScriptReader reader(*document, globalNamePrefix);
  try {
    reader.readLines(text);
    reader.finish();
  } catch (const std::exception& fault) {
    const std::string message =
        "The script \"" + name + "\" can't be used, line " + std::to_string(reader.line()) + ": " + fault.what();
    logError(message);
    // The program's exit code tells of it.
    if (const qsf::Qsf* host = qsf::Qsf::instance()) host->getFaultCounter().add(message);
    document = std::make_unique<ScriptDocument>();
  }
  return document.release();
}

Tokens ScriptParser::tokenize(const std::string& line) {
  Tokens tokens;
  return tokenizeFast(line, tokens) ? tokens : tokenizeByGrammar(line);
}

Tokens ScriptParser::splitArguments(std::string_view text) {
  Tokens tokens;
  std::string token;
  bool inQuotes = false;
  for (const char c : text) {
    if (c == '"') {
      inQuotes = !inQuotes;
    } else if (c == ',' && !inQuotes) {
      tokens.push_back(std::move(token));
      token.clear();
    } else {
      token.push_back(c);
    }
  }
  if (!token.empty()) tokens.push_back(std::move(token));
  return tokens;
}

}
