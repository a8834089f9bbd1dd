#pragma once
#include <string>
#include <vector>

namespace script::tooling {

/// One parameter of a catalogue entry.
struct CatalogueParameter {
  int index = 0;    ///< position in the line, from 1
  std::string type; ///< "string", "bool", "int", "float" or "uint64", as the reference writes it
  std::string name; ///< may be empty
  std::string defaultValue;
  std::string description;
  std::string role;               ///< what the parameter means: "list in and out", "component", "words", ...
  int componentIndex = 0;         ///< for a property: the parameter that names its component
  std::vector<std::string> words; ///< accepted ones, if the role has some
};

/// One condition or effect that scripts can name.
struct CatalogueEntry {
  enum class Kind { CONDITION, EFFECT };

  Kind kind = Kind::CONDITION;
  std::string name;
  std::string group; ///< class of the group that holds it; empty for those that stand before all groups
  std::string category;
  std::string description;
  std::vector<std::string> oddities; ///< what looks odd but is kept, one sentence each
  std::vector<CatalogueParameter> parameters;
};

/// A file of the reference that the game gives authors.
struct ReferenceFile {
  std::string name;
  std::string text;
};

/// The whole catalogue, conditions first, in the order of groups and chains. Made from the code that reads the
/// parameters; needs no host.
std::vector<CatalogueEntry> describeCatalogue();

}
