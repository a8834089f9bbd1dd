#pragma once
#include "qsf/base/LoadError.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

namespace qsf {

using Json = nlohmann::ordered_json;

/// A place in a JSON file that is read: the value, the file it stands in and the path to it. Each operation throws
/// LoadError with both if the file doesn't hold what is asked for. Lives no longer than the document.
class JsonPlace {
public:
  JsonPlace(const Json& value, const std::string& file, std::string path = {})
      : mValue(&value), mFile(&file), mPath(std::move(path)) {}

  [[noreturn]] void fail(const std::string& fault) const;
  const Json& getValue() const { return *mValue; }
  const std::string& getPath() const { return mPath; }

  bool has(const std::string& key) const;
  /// The member of that name; a missing one is a fault.
  JsonPlace member(const std::string& key) const;
  JsonPlace element(std::size_t index) const;
  std::size_t size() const { return mValue->size(); }
  /// Calls back for each member, in the order of the file.
  void eachMember(const std::function<void(const std::string& key, const JsonPlace& place)>& visit) const;

  /// Fails unless it is an object whose members all have one of these names.
  void expectObject(const std::vector<std::string>& knownKeys) const;
  void expectObject() const;
  void expectArray() const;
  std::string asText() const;
  double asNumber() const;
  std::uint64_t asId() const;
  bool asBool() const;
  /// An array of exactly that many numbers.
  std::vector<float> asNumbers(std::size_t count) const;

private:
  const Json* mValue;
  const std::string* mFile;
  std::string mPath;
};

/// Reads and parses a file. Throws LoadError for a file that cannot be read, for malformed JSON (with line and column)
/// and for an object with two members of one name.
Json readJsonFile(const std::string& file);

}
