#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// A value of a JSON file as expectations see it: its text, and its members or elements in the order of the file.
struct JsonValue {
  enum class Kind : unsigned char { TEXT, OBJECT, ARRAY } kind = Kind::TEXT;
  std::string key;  ///< of a member; elements have none
  std::string text; ///< texts as they are, numbers as written, true, false, null; empty for the others
  std::vector<JsonValue> children;

  /// The value at a path of keys with dots between them, elements by their number from 0; of two members of one key the
  /// first. The empty path is the value itself. Null if there is none.
  const JsonValue* find(std::string_view path) const;
};

/// Throws std::runtime_error with the reason if the text is no JSON or nested deeper than anybody can read.
JsonValue parseJson(const std::string& text);

}
