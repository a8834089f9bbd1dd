#include "apps/tidemark/test/files/JsonText.h"

#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/directives/Words.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace tidemark::test {

namespace {

using Json = nlohmann::json;

constexpr std::size_t DEEPEST = 1000;

/// Builds the tree while the text is read; the library's own values would drop the first of two members of one key.
class Builder {
public:
  JsonValue take() { return std::move(mRoot); }
  const std::string& fault() const { return mFault; }

  // NOLINTBEGIN(readability-identifier-naming): the library calls these by their names.
  bool null() { return add("null"); }
  bool boolean(bool value) { return add(value ? "true" : "false"); }
  bool number_integer(std::int64_t value) { return add(fmt::format("{}", value)); }
  bool number_unsigned(std::uint64_t value) { return add(fmt::format("{}", value)); }
  bool number_float(double, const std::string& written) { return add(written); }
  bool string(const std::string& value) { return add(value); }
  bool binary(const Json::binary_t&) { return false; }
  bool start_object(std::size_t) { return open(JsonValue::Kind::OBJECT); }
  bool start_array(std::size_t) { return open(JsonValue::Kind::ARRAY); }
  bool key(const std::string& name) {
    mKey = name;
    return true;
  }
  bool end_object() { return close(); }
  bool end_array() { return close(); }
  bool parse_error(std::size_t position, const std::string&, const Json::exception&) {
    mFault = fmt::format("malformed at byte {}", position);
    return false;
  }
  // NOLINTEND(readability-identifier-naming)

private:
  JsonValue& place() {
    if (mOpen.empty()) return mRoot;
    // Only the last value of a list is ever open, so that no list grows below an open one.
    JsonValue& value = mOpen.back()->children.emplace_back();
    value.key = std::exchange(mKey, {});
    return value;
  }
  bool add(std::string text) {
    place().text = std::move(text);
    return true;
  }
  bool open(JsonValue::Kind kind) {
    if (mOpen.size() >= DEEPEST) {
      mFault = fmt::format("nested deeper than {} levels", DEEPEST);
      return false;
    }
    JsonValue& value = place();
    value.kind = kind;
    mOpen.push_back(&value);
    return true;
  }
  bool close() {
    mOpen.pop_back();
    return true;
  }

  JsonValue mRoot;
  std::vector<JsonValue*> mOpen;
  std::string mKey;
  std::string mFault;
};

}

const JsonValue* JsonValue::find(std::string_view path) const {
  if (path.empty()) return this;
  const std::size_t dot = path.find('.');
  const std::string_view name = path.substr(0, dot);
  const std::string_view rest = dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1);
  if (kind == Kind::ARRAY) {
    const auto index = parseId(name);
    return index && *index < children.size() ? children[static_cast<std::size_t>(*index)].find(rest) : nullptr;
  }
  const auto found =
      std::find_if(children.begin(), children.end(), [&](const auto& child) { return textMatches(name, child.key); });
  return found == children.end() ? nullptr : found->find(rest);
}

JsonValue parseJson(const std::string& text) {
  Builder builder;
  if (!Json::sax_parse(text, &builder)) throw std::runtime_error(builder.fault());
  return builder.take();
}

}
