#pragma once
#include "game_plugin/scenario/records/CatalogueEntry.h"

#include <string>
#include <string_view>

namespace script {

class ScenarioConditions;
class ScenarioEffects;

/// Turns a script's text into a document. Keeps no state between calls.
class ScriptParser {
public:
  /// Reads the file. Always gives a document, owned by the caller: empty if the file can't be opened, or if a fault
  /// escapes from a line (then one line at severity 4 names the file and the line). `globalNamePrefix` stands before
  /// each trigger's name.
  ScriptDocument* parse(const std::string& path, const std::string& globalNamePrefix) const;
  /// The same for a text in memory; `name` is what messages call it.
  ScriptDocument* parseText(std::string_view text, const std::string& name, const std::string& globalNamePrefix) const;

  /// The words of one line; empty if the line is no command.
  static Tokens tokenize(const std::string& line);
  /// Splits at commas outside double quotes and drops the quotes. A text at the end is dropped if it is empty.
  static Tokens splitArguments(std::string_view text);
};

}
