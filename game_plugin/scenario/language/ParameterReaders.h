#pragma once
#include "game_plugin/scenario/language/CompareValues.h"
#include "game_plugin/scenario/records/CatalogueEntry.h"
#include "game_plugin/scenario/stores/Argument.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// What a reader says of a parameter when it describes instead of reading.
struct ParameterDocumentation {
  std::string type;
  std::string name;
  std::string defaultValue;
  std::string description;
};

/// Process-wide flag: while it is set, readers describe their parameter and give the default. Only the documentation
/// generator and the tools set it.
bool isDocumenting();

/// Sets the flag for its lifetime and collects what the readers describe, in order, into the given list.
class DocumentationScope {
public:
  explicit DocumentationScope(std::vector<ParameterDocumentation>& parameters);
  ~DocumentationScope();
  DocumentationScope(const DocumentationScope&) = delete;
  DocumentationScope& operator=(const DocumentationScope&) = delete;

private:
  std::vector<ParameterDocumentation>* mPrevious;
};

// The readers that every entry uses. A token that is missing gives the default, without a message; with an empty name a
// missing token throws std::out_of_range, readBoolParameter excepted. A token of the wrong type is logged and gives the
// default. A text is viewed where it stands, in the tokens or in the default: the caller stores it.

std::string_view readStringParameter(const Tokens& tokens, int index, std::string_view defaultValue,
                                     std::string_view name, std::string_view description);
bool readBoolParameter(const Tokens& tokens, int index, bool defaultValue, std::string_view name,
                       std::string_view description);
int readIntParameter(const Tokens& tokens, int index, int defaultValue, std::string_view name,
                     std::string_view description);
float readFloatParameter(const Tokens& tokens, int index, float defaultValue, std::string_view name,
                         std::string_view description);
std::uint64_t readUInt64Parameter(const Tokens& tokens, int index, std::uint64_t defaultValue, std::string_view name,
                                  std::string_view description);

}
