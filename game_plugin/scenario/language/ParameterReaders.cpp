#include "game_plugin/scenario/language/ParameterReaders.h"

#include "game_plugin/scenario/Log.h"

#include <boost/lexical_cast.hpp>

#include <stdexcept>

namespace script {

namespace {

std::vector<ParameterDocumentation>* documentation = nullptr;

// Run-time type names differ between compilers; the reference writes these words.
template <class T> constexpr const char* TYPE_WORD = "int";
template <> constexpr const char* TYPE_WORD<std::string_view> = "string";
template <> constexpr const char* TYPE_WORD<float> = "float";
template <> constexpr const char* TYPE_WORD<std::uint64_t> = "uint64";

std::string defaultAsText(std::string_view value) { return std::string(value); }

template <class T> std::string defaultAsText(const T& value) {
  std::string text;
  if (!boost::conversion::try_lexical_convert(value, text)) text.clear();
  return text;
}

template <class T>
T readParameter(const Tokens& tokens, int index, const T& defaultValue, std::string_view name,
                std::string_view description) {
  if (documentation) {
    documentation->push_back({TYPE_WORD<T>, std::string(name), defaultAsText(defaultValue), std::string(description)});
    return defaultValue;
  }
  const std::size_t position = static_cast<std::size_t>(index);
  if (position >= tokens.size()) {
    if (!name.empty()) return defaultValue;
    throw std::out_of_range("invalid vector<T> subscript");
  }
  const std::string& token = tokens[position];
  if constexpr (std::is_same_v<T, std::string_view>) {
    return token;
  } else {
    T value{};
    if (boost::conversion::try_lexical_convert(token, value)) return value;
    logInfo(token);
    logInfo("Cant cast your property: " + std::string(name) + ". Using " + defaultAsText(defaultValue) + ".");
    return defaultValue;
  }
}

}

bool isDocumenting() { return documentation != nullptr; }

DocumentationScope::DocumentationScope(std::vector<ParameterDocumentation>& parameters) : mPrevious(documentation) {
  documentation = &parameters;
}

DocumentationScope::~DocumentationScope() { documentation = mPrevious; }

std::string_view readStringParameter(const Tokens& tokens, int index, std::string_view defaultValue,
                                     std::string_view name, std::string_view description) {
  return readParameter(tokens, index, defaultValue, name, description);
}

bool readBoolParameter(const Tokens& tokens, int index, bool defaultValue, std::string_view name,
                       std::string_view description) {
  if (documentation) {
    documentation->push_back({"bool", std::string(name), defaultValue ? "true" : "false", std::string(description)});
    return defaultValue;
  }
  const std::size_t position = static_cast<std::size_t>(index);
  if (position >= tokens.size()) return defaultValue;
  const std::string& token = tokens[position];
  if (token == "false") return false;
  if (token == "true") return true;
  if (!name.empty()) logInfo("Boolvalue: " + std::string(name) + " cant be read.|" + token + "|");
  return defaultValue;
}

int readIntParameter(const Tokens& tokens, int index, int defaultValue, std::string_view name,
                     std::string_view description) {
  return readParameter(tokens, index, defaultValue, name, description);
}

float readFloatParameter(const Tokens& tokens, int index, float defaultValue, std::string_view name,
                         std::string_view description) {
  return readParameter(tokens, index, defaultValue, name, description);
}

std::uint64_t readUInt64Parameter(const Tokens& tokens, int index, std::uint64_t defaultValue, std::string_view name,
                                  std::string_view description) {
  return readParameter(tokens, index, defaultValue, name, description);
}

}
