#include "qsf/base/JsonFile.h"

#include "qsf/base/NearNames.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace qsf {

namespace {

std::string readText(const std::string& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) throw LoadError(file, "", "there is no such file");
  if (!std::filesystem::is_regular_file(file, error)) throw LoadError(file, "", "this is no file");
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  if (!stream || !(stream.peek() == std::ifstream::traits_type::eof() || text << stream.rdbuf()))
    throw LoadError(file, "", "the file cannot be read");
  return text.str();
}

std::string lineAndColumn(const std::string& text, std::size_t position) {
  position = std::min(position, text.size());
  const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(position), '\n');
  const std::size_t lineBegin = position == 0 ? 0 : text.rfind('\n', position - 1) + 1;
  return "line " + std::to_string(line) + ", column " + std::to_string(position - lineBegin + 1);
}

/// Throws for an object with two members of one name, which the parser itself would merge in silence.
struct DuplicateKeyCheck {
  const std::string& file;
  std::vector<std::set<std::string>> keys;

  bool operator()(int /*depth*/, Json::parse_event_t event, const Json& parsed) {
    if (event == Json::parse_event_t::object_start)
      keys.emplace_back();
    else if (event == Json::parse_event_t::object_end)
      keys.pop_back();
    else if (event == Json::parse_event_t::key && !keys.back().insert(parsed.get<std::string>()).second)
      throw LoadError(file, "", "an object has two members named \"" + parsed.get<std::string>() + "\"");
    return true;
  }
};

}

Json readJsonFile(const std::string& file) {
  const std::string text = readText(file);
  DuplicateKeyCheck check{file, {}};
  try {
    return Json::parse(text, std::ref(check));
  } catch (const Json::parse_error& fault) {
    const std::string what = fault.what();
    const std::size_t reason = what.find(": ", what.find("parse error")); // behind the library's own head
    throw LoadError(file, lineAndColumn(text, fault.byte == 0 ? 0 : fault.byte - 1),
                    "malformed JSON" + (reason == std::string::npos ? "" : what.substr(reason)));
  } catch (const Json::exception& fault) {
    throw LoadError(file, "", std::string("malformed JSON: ") + fault.what());
  }
}

void JsonPlace::fail(const std::string& fault) const { throw LoadError(*mFile, mPath.empty() ? "/" : mPath, fault); }

bool JsonPlace::has(const std::string& key) const { return mValue->is_object() && mValue->contains(key); }

JsonPlace JsonPlace::member(const std::string& key) const {
  if (!has(key)) fail("the member \"" + key + "\" is missing");
  return {(*mValue)[key], *mFile, mPath + "/" + key};
}

JsonPlace JsonPlace::element(std::size_t index) const {
  return {(*mValue)[index], *mFile, mPath + "/" + std::to_string(index)};
}

void JsonPlace::eachMember(const std::function<void(const std::string&, const JsonPlace&)>& visit) const {
  for (auto member = mValue->begin(); member != mValue->end(); ++member)
    visit(member.key(), JsonPlace(member.value(), *mFile, mPath + "/" + member.key()));
}

void JsonPlace::expectObject() const {
  if (!mValue->is_object()) fail(std::string("an object is expected here, not ") + mValue->type_name());
}

void JsonPlace::expectObject(const std::vector<std::string>& knownKeys) const {
  expectObject();
  eachMember([&](const std::string& key, const JsonPlace& place) {
    if (std::find(knownKeys.begin(), knownKeys.end(), key) == knownKeys.end())
      place.fail("unknown member \"" + key + "\"" + nearNamesHint(key, knownKeys));
  });
}

void JsonPlace::expectArray() const {
  if (!mValue->is_array()) fail(std::string("an array is expected here, not ") + mValue->type_name());
}

std::string JsonPlace::asText() const {
  if (!mValue->is_string()) fail(std::string("a text is expected here, not ") + mValue->type_name());
  return mValue->get<std::string>();
}

double JsonPlace::asNumber() const {
  if (!mValue->is_number()) fail(std::string("a number is expected here, not ") + mValue->type_name());
  const double number = mValue->get<double>();
  if (!std::isfinite(static_cast<float>(number))) fail("the number is out of range");
  return number;
}

std::uint64_t JsonPlace::asId() const {
  // Only a number is shown as it stands: a value may be nested so deep that its text can't be built.
  if (!mValue->is_number_unsigned())
    fail("an id, a whole number from 0 on, is expected here, not " +
         (mValue->is_number() ? mValue->dump() : mValue->type_name()));
  return mValue->get<std::uint64_t>();
}

bool JsonPlace::asBool() const {
  if (!mValue->is_boolean()) fail("true or false is expected here, not " + std::string(mValue->type_name()));
  return mValue->get<bool>();
}

std::vector<float> JsonPlace::asNumbers(std::size_t count) const {
  if (!mValue->is_array() || mValue->size() != count)
    fail("an array of " + std::to_string(count) + " numbers is expected here");
  std::vector<float> numbers;
  for (std::size_t i = 0; i < count; ++i)
    numbers.push_back(static_cast<float>(element(i).asNumber()));
  return numbers;
}

}
