#include "game_plugin/syntax/ScriptText.h"

#include <utf8cpp/utf8.h>

#include <algorithm>
#include <array>

namespace script::syntax {

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view BLANKS = " \t\n\v\f\r";

bool isDecoration(char c) { return c == '\t' || c == '{' || c == '}'; }

constexpr std::array<bool, 256> buildSpecials() {
  std::array<bool, 256> specials{};
  for (const char c : {'\t', '{', '}', '$'})
    specials[static_cast<unsigned char>(c)] = true;
  return specials;
}
constexpr std::array<bool, 256> SPECIALS = buildSpecials();

/// Whether a line is more than its text: find_first_of would ask the set anew for each character.
bool holdsSpecials(std::string_view line) {
  return std::ranges::any_of(line, [](char c) { return SPECIALS[static_cast<unsigned char>(c)]; });
}

}

std::uint32_t Line::columnOf(std::uint32_t offset) const {
  if (text.size() == raw.size()) return offset + 1;
  std::uint32_t column = 1;
  for (const char c : raw) {
    if (!isDecoration(c) && offset-- == 0) break;
    ++column;
  }
  return column;
}

ScriptText::ScriptText(std::string_view text) : mRest(text) {
  if (mRest.substr(0, BYTE_ORDER_MARK.size()) == BYTE_ORDER_MARK) mRest.remove_prefix(BYTE_ORDER_MARK.size());
}

bool ScriptText::isMultiByteUtf8(std::string_view text) {
  const bool hasMultiByte = std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
  return hasMultiByte && utf8::is_valid(text.begin(), text.end());
}

bool ScriptText::next() {
  if (mRest.empty()) return false;
  const std::size_t end = mRest.find('\n');
  mLine.raw = mRest.substr(0, end);
  mRest.remove_prefix(end == std::string_view::npos ? mRest.size() : end + 1);
  if (!mLine.raw.empty() && mLine.raw.back() == '\r') mLine.raw.remove_suffix(1);
  ++mLine.number;
  mLine.kind = LineKind::EMPTY;
  mLine.negated = false;
  mLine.tokens.clear();
  clean();
  if (mLine.kind != LineKind::COMMENT && !mLine.text.empty()) classify();
  // Read last, since keywords change where the line stands.
  mLine.inBlock = mInBlock;
  mLine.inElse = mInElse;
  return true;
}

void ScriptText::clean() {
  mLine.text = mLine.raw;
  if (!holdsSpecials(mLine.raw)) return;
  if (mLine.raw.find('$') != std::string_view::npos) {
    mLine.kind = LineKind::COMMENT;
    mLine.text = {};
    return;
  }
  mClean.clear();
  for (const char c : mLine.raw)
    if (!isDecoration(c)) mClean.push_back(c);
  mLine.text = mClean;
}

void ScriptText::classify() {
  if (!tokenizeFast(mLine.text, mLine.tokens) && !tokenizeByGrammar(mLine.text, mLine.tokens, mStorage)) {
    mLine.tokens.clear();
    if (mLine.text.find_first_not_of(BLANKS) != std::string_view::npos) mLine.kind = LineKind::INVALID;
    return;
  }
  Token& first = mLine.tokens.front();
  mLine.negated = first.text.front() == '!';
  if (mLine.negated) {
    first.text.remove_prefix(1);
    do
      ++first.begin;
    while (BLANKS.find(mLine.text[first.begin]) != std::string_view::npos);
  }
  const std::string_view name = first.text;
  if (name == "InitNewTrigger") {
    mLine.kind = LineKind::NEW_TRIGGER;
    mInBlock = false; // the section stays: only the first trigger of a file begins in its conditions
  } else if (name == "InitConditions") {
    mLine.kind = LineKind::CONDITIONS;
    mReadingConditions = true;
  } else if (name == "InitEffects" || name == "InitNegativEffects") {
    // Negative effects are effects like the others: that is how they have always run.
    mLine.kind = LineKind::EFFECTS;
    mReadingConditions = false;
  } else if (name == "If") {
    mLine.kind = LineKind::IF;
    mInBlock = mReadingConditions = true;
    mInElse = false;
  } else if (name == "Else") {
    mLine.kind = LineKind::ELSE;
    mInElse = true;
  } else if (mInBlock && name == "Then") {
    mLine.kind = LineKind::THEN;
    mReadingConditions = false;
  } else if (mInBlock && name == "ThenEnd") {
    mLine.kind = LineKind::THEN_END;
    mInBlock = mReadingConditions = false;
  } else {
    mLine.kind = mReadingConditions ? LineKind::CONDITION : LineKind::EFFECT;
  }
}

}
