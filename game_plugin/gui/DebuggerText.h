#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace script {

class Program;
class ScenarioHandler;
struct MapScriptEntry;
struct ScriptDocument;

/// The text with the marks of RML written as entities, so that it can stand in an element and in an attribute.
std::string escapeRml(std::string_view text);

/// Lines of a program as their file writes them: the entry's name and its parameters. Read once, from the file as it is
/// then; a line that has become another one since the load has its entry's name alone.
class EntryTexts {
public:
  explicit EntryTexts(std::shared_ptr<const Program> program);
  const std::shared_ptr<const Program>& program() const { return mProgram; }
  /// What stands in the line of a record of that name.
  std::string at(std::uint32_t line, std::string_view entryName) const;

private:
  struct Entry {
    std::string name;
    std::string text;
  };
  std::shared_ptr<const Program> mProgram;
  std::unordered_map<std::uint32_t, Entry> mEntries;
};

// What the debugger's elements hold, as RML. A name may be any text.

/// The scripts that run, each with its number in the list.
std::string scriptListRml(const std::vector<MapScriptEntry*>& entries);
/// All triggers with their state; the one of that name with its conditions and effects.
std::string triggersRml(const ScriptDocument& document, const EntryTexts& texts, const std::string& openTrigger);
/// The local variables, string variables and entity lists.
std::string variablesRml(const ScenarioHandler& handler);
/// A headline and lines of a players' log.
std::string playerLogRml(std::string_view headline, const std::vector<std::string>& lines);

}
