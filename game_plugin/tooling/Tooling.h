#pragma once
#include "qsf/Export.h"
#include "qsf/base/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace script::tooling {

/// One condition or effect as a tool shows it.
struct EntryView {
  std::string name;
  bool expected = true;   ///< false for a condition written with `!`; always true for effects
  std::uint32_t line = 0; ///< line of the script's file, from 1
};

/// A trigger with its running state, copied at the moment of the call.
struct TriggerView {
  std::string name;
  std::string globalName;
  std::uint32_t hash = 0;
  std::uint32_t line = 0;
  bool active = false;
  bool looped = false;
  std::uint32_t fulfilledConditions = 0;
  std::int32_t requiredConditions = 0;
  std::vector<EntryView> conditions;
  std::vector<EntryView> effects;
  std::uint32_t numberOfBlocks = 0;
  qsf::Time lastTimeActive;
  std::uint32_t multiplayerMode = 0;
  std::uint32_t player = 0;
  std::uint64_t timesFired = 0; ///< since the start of the host, over restarts and reloads
};

/// A script that the module knows: configured in a MapScript.json, or a temporary one.
struct ScriptView {
  std::string key;     ///< child name in MapScript.json; the path as given for a temporary script
  std::string project; ///< empty for a temporary script
  std::string path;    ///< the file, as the module opens it
  std::string mode;    ///< mode text
  bool running = false;
  qsf::Time time;
  std::size_t numberOfTriggers = 0;
};

enum class StoreKind { Variables, Strings, Lists, Bools, Jsons, StringLists };

/// What tools may see and do. The object lives as long as the module is loaded. Scripts are addressed by their index in
/// getScripts(), which changes when scripts start, stop or are reloaded. Reading never creates store entries.
class QSF_API Tooling {
public:
  virtual ~Tooling() = default;

  virtual std::vector<ScriptView> getScripts() const = 0;
  virtual std::vector<TriggerView> getTriggers(std::size_t script) const = 0;

  /// Names of a store in its order. Without a script: the global store; empty for kinds that have none and for a script
  /// that doesn't run.
  virtual std::vector<std::string> getNames(std::optional<std::size_t> script, StoreKind kind) const = 0;
  virtual std::optional<float> getVariable(std::optional<std::size_t> script, const std::string& name) const = 0;
  virtual std::optional<std::string> getString(std::optional<std::size_t> script, const std::string& name) const = 0;
  virtual std::optional<std::vector<std::uint64_t>> getList(std::optional<std::size_t> script,
                                                            const std::string& name) const = 0;
  virtual std::optional<bool> getBool(std::size_t script, const std::string& name) const = 0;
  virtual std::optional<std::vector<std::string>> getStringList(std::size_t script, const std::string& name) const = 0;
  /// Value at a path with `.` as separator.
  virtual std::optional<std::string> getJson(std::size_t script, const std::string& name,
                                             const std::string& path) const = 0;

  /// Set as a script would, in the script's local stores or, for a name with the global mark, in the global ones. False
  /// if the script doesn't run.
  virtual bool setVariable(std::size_t script, const std::string& name, float value) = 0;
  virtual bool setString(std::size_t script, const std::string& name, const std::string& value) = 0;
  virtual bool setBool(std::size_t script, const std::string& name, bool value) = 0;
  virtual bool setList(std::size_t script, const std::string& name, const std::vector<std::uint64_t>& ids) = 0;

  /// What the debugger's reload button does: a new manager reads all files anew and starts the scripts of the running
  /// map.
  virtual void reload() = 0;
};

/// Type and name of the function that the module exports for tools.
using GetToolingFunction = Tooling* (*)();
inline constexpr const char* GET_TOOLING_SYMBOL = "GetTidemarkTooling";

}
