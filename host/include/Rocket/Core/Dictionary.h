#pragma once
#include "Rocket/Core/String.h"

#include <sstream>
#include <utility>
#include <vector>

namespace Rocket::Core {

/// Values by name, in the order in which the names came first. Kept as texts; numbers go through a text stream.
class QSF_API Dictionary {
public:
  void Set(const String& key, const String& value);
  void Set(const String& key, const char* value) { Set(key, String(value)); }
  template <class T> void Set(const String& key, const T& value) {
    std::ostringstream text;
    text << value;
    Set(key, String(text.str()));
  }
  /// Null for an unknown name.
  const String* Find(const String& key) const;
  /// The default for an unknown name and for a value that can't be read as a T.
  String Get(const String& key, const String& defaultValue) const;
  template <class T> T Get(const String& key, const T& defaultValue) const {
    const String* found = Find(key);
    T value{};
    return found && std::istringstream(*found) >> value ? value : defaultValue;
  }
  /// False if there was none.
  bool Remove(const String& key);
  void Clear() { mValues.clear(); }
  bool IsEmpty() const { return mValues.empty(); }
  std::size_t Size() const { return mValues.size(); }
  const std::vector<std::pair<String, String>>& GetValues() const { return mValues; }

private:
  std::vector<std::pair<String, String>> mValues;
};

}
