#pragma once
#include <nlohmann/json.hpp>

#include <string>

namespace em5 {

/// A JSON file of a project, read with faults that name file and place. Made for one read and thrown away.
class JsonFile {
public:
  /// Throws qsf::LoadError if the file can't be read or isn't a JSON object.
  explicit JsonFile(const std::string& file);

  const std::string& getFile() const { return mFile; }
  const nlohmann::ordered_json& getRoot() const { return mRoot; }

  /// Members of an object by name; each throws qsf::LoadError for a value of the wrong kind. `place` is the object's
  /// JSON path, "/" for the root.
  std::string readString(const nlohmann::ordered_json& object, const std::string& place, const std::string& key,
                         const std::string& defaultValue) const;
  double readNumber(const nlohmann::ordered_json& object, const std::string& place, const std::string& key,
                    double minimum, double maximum, double defaultValue) const;
  bool readBool(const nlohmann::ordered_json& object, const std::string& place, const std::string& key,
                bool defaultValue) const;
  std::vector<std::string> readStrings(const nlohmann::ordered_json& value, const std::string& place) const;
  /// A member that isn't among the known ones is a fault: it would be a typing error that nobody notices.
  void refuseUnknownKeys(const nlohmann::ordered_json& object, const std::string& place,
                         const std::vector<std::string>& known) const;
  [[noreturn]] void fail(const std::string& place, const std::string& fault) const;

private:
  std::string mFile;
  nlohmann::ordered_json mRoot;
};

}
