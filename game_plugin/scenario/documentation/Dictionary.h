#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"

#include <string>
#include <string_view>
#include <vector>

namespace script::documentation {

/// One entry of the reference files.
struct DictionaryEntry {
  std::string name;
  std::vector<ParameterDocumentation> parameters; ///< in the order of reading
  bool isCondition = false;
  std::string description;
  std::string category;
};
using Dictionary = std::vector<DictionaryEntry>;

/// Appends what the entry of that name tells of itself; a condition comes before an effect of the same name. One that
/// nobody knows is logged and left out.
void addToDictionary(Dictionary& dictionary, std::string_view name);

/// All documented entries that there are, in their order. Needs no host.
Dictionary makeDictionary();

}
