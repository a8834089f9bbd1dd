#include "Rocket/Core/Dictionary.h"

#include <algorithm>

namespace Rocket::Core {

namespace {

template <class Values> auto findKey(Values& values, const String& key) {
  return std::find_if(values.begin(), values.end(), [&](const auto& value) { return value.first == key; });
}

}

void Dictionary::Set(const String& key, const String& value) {
  const auto found = findKey(mValues, key);
  if (found == mValues.end())
    mValues.emplace_back(key, value);
  else
    found->second = value;
}

const String* Dictionary::Find(const String& key) const {
  const auto found = findKey(mValues, key);
  return found == mValues.end() ? nullptr : &found->second;
}

String Dictionary::Get(const String& key, const String& defaultValue) const {
  const String* found = Find(key);
  return found ? *found : defaultValue;
}

bool Dictionary::Remove(const String& key) {
  const auto found = findKey(mValues, key);
  if (found == mValues.end()) return false;
  mValues.erase(found);
  return true;
}

}
