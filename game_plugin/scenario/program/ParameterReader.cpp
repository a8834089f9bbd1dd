#include "game_plugin/scenario/program/ParameterReader.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/lexical_cast.hpp>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace script {

namespace {

// Run-time type names differ between compilers; the reference writes these words.
template <class T> constexpr std::string_view TYPE_WORD = "int";
template <> constexpr std::string_view TYPE_WORD<float> = "float";
template <> constexpr std::string_view TYPE_WORD<std::uint64_t> = "uint64";

template <class T> std::string toText(const T& value) {
  std::string text;
  if (!boost::conversion::try_lexical_convert(value, text)) text.clear();
  return text;
}

std::string forName(std::string_view name) { return name.empty() ? "" : " for " + std::string(name); }

/// True if the parameter names a variable or list that the entry writes.
bool writesName(ParameterRole role) {
  switch (role) {
  case ParameterRole::VARIABLE_OUT:
  case ParameterRole::VARIABLE_IN_OUT:
  case ParameterRole::STRING_VARIABLE_OUT:
  case ParameterRole::STRING_VARIABLE_IN_OUT:
  case ParameterRole::LIST_OUT:
  case ParameterRole::LIST_IN_OUT:
    return true;
  default:
    return false;
  }
}

}

namespace detail {

ProgramMemory& memoryOf(const ParameterReader& in) { return in.builder().memory(); }

}

Argument::Argument(const ParameterText& text)
    : mText(text.mBuilder ? &text.mBuilder->intern(text) : &ArgumentText::EMPTY) {}

const syntax::Token* ParameterReader::find(int index, Text name) const {
  const std::size_t position = static_cast<std::size_t>(index);
  if (position < mTokens.size()) return &mTokens[position];
  if (!name.empty()) return nullptr;
  throw std::out_of_range("invalid vector<T> subscript");
}

ParameterText ParameterReader::read(ParameterRole role, int index, Text defaultValue, Text name, Text description) {
  if (mDocumentation) {
    mDocumentation->push_back({"string", name, std::string(defaultValue), description, index, role, 0, {}});
    return {defaultValue, nullptr};
  }
  const syntax::Token* token = find(index, name);
  const Text text = token ? token->text : defaultValue;
  if (hints::isOn() && (!token || writesName(role))) hints::noteMeant(text);
  return {text, mBuilder};
}

template <class T>
T ParameterReader::convert(ParameterRole role, int index, T defaultValue, Text name, Text description) {
  if (mDocumentation) {
    mDocumentation->push_back({TYPE_WORD<T>, name, toText(defaultValue), description, index, role, 0, {}});
    return defaultValue;
  }
  const syntax::Token* token = find(index, name);
  if (!token) return defaultValue;
  T value{};
  if (boost::conversion::try_lexical_convert(token->text, value)) return value;
  mBuilder->log(LOG_INFO, std::string(token->text));
  mBuilder->log(LOG_INFO, "Cant cast your property: " + std::string(name) + ". Using " + toText(defaultValue) + ".");
  if (hints::isOn())
    hints::tell(HintKind::CONVERSION, "\"" + std::string(token->text) + "\" is no " +
                                          (std::is_same_v<T, float> ? "number" : "whole number") + forName(name) +
                                          "; " + toText(defaultValue) + " is used");
  return defaultValue;
}

ParameterText ParameterReader::property(int i, int componentIndex, Text def, Text name, Text text) {
  const ParameterText result = read(ParameterRole::PROPERTY, i, def, name, text);
  if (mDocumentation) mDocumentation->back().componentIndex = componentIndex;
  return result;
}

ParameterText ParameterReader::comparison(int i, Text def, Text name, Text text) {
  const ParameterText result = read(ParameterRole::COMPARISON, i, def, name, text);
  if (mDocumentation) {
    mDocumentation->back().words.assign(COMPARISON_OPERATORS.begin(), COMPARISON_OPERATORS.end());
  } else if (hints::isOn() && std::ranges::find(COMPARISON_OPERATORS, Text(result)) == COMPARISON_OPERATORS.end()) {
    hints::tell(HintKind::OPERATOR, "\"" + std::string(result) + "\" is no operator and means <",
                hints::nearest(result, COMPARISON_OPERATORS));
  }
  return result;
}

ParameterText ParameterReader::words(int i, Text def, Text name, Text text, WordList accepted) {
  const ParameterText result = read(ParameterRole::WORDS, i, def, name, text);
  if (mDocumentation)
    documentWords(accepted);
  else if (hints::isOn())
    hintUnknownWord(result, result, def, name, accepted);
  return result;
}

ParameterText ParameterReader::wordsInAnyCase(int i, Text def, Text name, Text text, WordList accepted) {
  const ParameterText result = read(ParameterRole::WORDS, i, def, name, text);
  if (mDocumentation)
    documentWords(accepted);
  else if (hints::isOn())
    hintUnknownWord(result, boost::algorithm::to_upper_copy(std::string(result)), def, name, accepted);
  return result;
}

void ParameterReader::documentWords(WordList accepted) {
  mDocumentation->back().words.assign(accepted.begin(), accepted.end());
}

void ParameterReader::hintUnknownWord(Text word, Text compared, Text defaultValue, Text name, WordList accepted) const {
  if (word == defaultValue || word.starts_with("svar(") || std::ranges::find(accepted, compared) != accepted.end())
    return;
  hints::tell(HintKind::WORD, "\"" + std::string(word) + "\" is no word that " + std::string(name) + " knows",
              hints::nearest(compared, accepted));
}

bool ParameterReader::flag(int i, bool def, Text name, Text text) {
  if (mDocumentation) {
    mDocumentation->push_back(
        {"bool", name, def ? "true" : "false", text, i, ParameterRole::FLAG, 0, {"true", "false"}});
    return def;
  }
  const std::size_t position = static_cast<std::size_t>(i);
  if (position >= mTokens.size()) return def;
  const Text token = mTokens[position].text;
  if (token == "false") return false;
  if (token == "true") return true;
  if (!name.empty())
    mBuilder->log(LOG_INFO, "Boolvalue: " + std::string(name) + " cant be read.|" + std::string(token) + "|");
  if (hints::isOn())
    hints::tell(HintKind::WORD, "\"" + std::string(token) + "\" is neither true nor false; " +
                                    (def ? "true" : "false") + " is used" + forName(name));
  return def;
}

int ParameterReader::integer(int i, int def, Text name, Text text, ParameterRole role) {
  return convert<int>(role, i, def, name, text);
}

float ParameterReader::decimal(int i, float def, Text name, Text text) {
  return convert<float>(ParameterRole::DECIMAL, i, def, name, text);
}

std::uint64_t ParameterReader::id(int i, std::uint64_t def, Text name, Text text) {
  return convert<std::uint64_t>(ParameterRole::ID, i, def, name, text);
}

std::span<const Argument> ParameterReader::keep(const std::vector<Argument>& texts) const {
  if (!mBuilder || texts.empty()) return {};
  auto* kept = static_cast<Argument*>(mBuilder->memory().allocate(texts.size() * sizeof(Argument), alignof(Argument)));
  std::uninitialized_copy(texts.begin(), texts.end(), kept);
  return {kept, texts.size()};
}

std::uint32_t ParameterReader::reserveState() { return mBuilder ? mBuilder->reserveState() : 0; }

}
