#include "em5/base/JsonFile.h"

#include "qsf/base/LoadError.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace em5 {

namespace {

using Json = nlohmann::ordered_json;

std::string join(const std::string& place, const std::string& key) {
  return place == "/" ? "/" + key : place + "/" + key;
}

}

JsonFile::JsonFile(const std::string& file) : mFile(file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw qsf::LoadError(file, "", "cannot be opened for reading");
  const std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  try {
    mRoot = Json::parse(text);
  } catch (const Json::parse_error& error) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(error.byte, text.size()));
    throw qsf::LoadError(file, "line " + std::to_string(1 + std::count(text.begin(), end, '\n')), error.what());
  } catch (const std::exception& error) {
    throw qsf::LoadError(file, "", error.what());
  }
  if (!mRoot.is_object()) fail("/", "an object is expected here");
}

std::string JsonFile::readString(const Json& object, const std::string& place, const std::string& key,
                                 const std::string& defaultValue) const {
  const auto found = object.find(key);
  if (found == object.end()) return defaultValue;
  if (!found->is_string()) fail(join(place, key), "a text is expected here");
  return found->get<std::string>();
}

double JsonFile::readNumber(const Json& object, const std::string& place, const std::string& key, double minimum,
                            double maximum, double defaultValue) const {
  const auto found = object.find(key);
  if (found == object.end()) return defaultValue;
  if (!found->is_number()) fail(join(place, key), "a number is expected here");
  const double value = found->get<double>();
  if (!(value >= minimum && value <= maximum))
    fail(join(place, key),
         "a number from " + Json(minimum).dump() + " to " + Json(maximum).dump() + " is expected here");
  return value;
}

bool JsonFile::readBool(const Json& object, const std::string& place, const std::string& key, bool defaultValue) const {
  const auto found = object.find(key);
  if (found == object.end()) return defaultValue;
  if (!found->is_boolean()) fail(join(place, key), "true or false is expected here");
  return found->get<bool>();
}

std::vector<std::string> JsonFile::readStrings(const Json& value, const std::string& place) const {
  if (!value.is_array()) fail(place, "an array of texts is expected here");
  std::vector<std::string> texts;
  for (const Json& element : value) {
    if (!element.is_string()) fail(join(place, std::to_string(texts.size())), "a text is expected here");
    texts.push_back(element.get<std::string>());
  }
  return texts;
}

void JsonFile::refuseUnknownKeys(const Json& object, const std::string& place,
                                 const std::vector<std::string>& known) const {
  for (const auto& [key, value] : object.items()) {
    if (std::find(known.begin(), known.end(), key) != known.end()) continue;
    std::string names;
    for (const std::string& name : known)
      names += (names.empty() ? "" : ", ") + name;
    fail(join(place, key), "unknown member; known are " + names);
  }
}

void JsonFile::fail(const std::string& place, const std::string& fault) const {
  throw qsf::LoadError(mFile, place, fault);
}

}
