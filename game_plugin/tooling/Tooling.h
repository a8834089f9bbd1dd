#pragma once
#include "game_plugin/tooling/Catalogue.h"

#include "qsf/Export.h"
#include "qsf/base/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qsf {
class GuiDocument;
}

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
  std::vector<std::uint64_t> callers; ///< entities that a client sent along
  std::uint64_t target = 0;           ///< entity that a client sent along; all bits set for none
  std::uint64_t timesFired = 0;       ///< since the start of the host, over restarts and reloads
};

/// A script that the module knows: configured in a MapScript.json, or a temporary one.
struct ScriptView {
  std::string key;     ///< child name in MapScript.json; the path as given for a temporary script
  std::string project; ///< empty for a temporary script
  std::string path;    ///< the file, as the module opens it
  std::string mode;    ///< mode text
  bool running = false;
  std::string state; ///< "running", "stopped", or why the script can't be used
  qsf::Time time;
  std::size_t numberOfTriggers = 0;
};

/// A script that the module knows no more, or never took.
struct FateView {
  std::string key;     ///< as in ScriptView
  std::string project; ///< empty for a temporary script
  std::string path;
  std::string mode;
  std::string what; ///< what became of it and why: "stopped by StopScenario, day.script:12", or a message of the load
  qsf::Time time;   ///< how long the last instance ran
  std::uint64_t count = 1; ///< instances with this fate
};

/// Where in a script something happens.
struct Origin {
  std::string path;       ///< the script's file
  std::uint32_t line = 0; ///< from 1
  std::string trigger;    ///< local name of the trigger that the line belongs to; empty above the first
};

/// What the language passed over without a word, at one place of a script.
struct HintView {
  Origin origin;
  std::string
      kind; ///< "word", "operator", "conversion", "component", "property", "entity", "asset", "name", "link", "network"
  std::string text;
  std::string nearest; ///< the nearest right name; empty if none comes close
  std::uint64_t count = 0;
};

/// A line of a script that the loader dropped.
struct DroppedLineView {
  std::string path;
  std::uint32_t line = 0;   ///< from 1
  std::uint32_t column = 0; ///< from 1, in bytes
  std::string reason;
};

/// What a script bids for one of its mouse click commands.
struct CommandBidView {
  std::string name;
  std::string icon;
  float priority = 0; ///< 0: it is not offered
  bool armed = false; ///< the conditions of its trigger held when they were tested last
};

/// Trigger instructions between the machines of a session, for one trigger's hash, since the module's start.
struct InstructionView {
  std::uint32_t hash = 0;
  std::uint64_t sent = 0; ///< by this machine
  std::uint64_t lost = 0; ///< arrived here, where no running script has the trigger
};

/// An event that scripts drive.
struct ScenarioEventView {
  std::int32_t uniqueId = -1;
  std::uint64_t eventId = 0; ///< the host's
  std::string eventType;
  bool allowedToFinish = false;
};

enum class StoreKind { VARIABLES, STRINGS, LISTS, BOOLS, JSONS, STRING_LISTS };

/// What tools may see and do. The object lives as long as the module is loaded. Scripts are addressed by their index in
/// getScripts(), which changes when scripts start, stop or are reloaded. Reading never creates store entries.
class QSF_API Tooling {
public:
  virtual ~Tooling() = default;

  /// All conditions and effects; needs no host.
  virtual std::vector<CatalogueEntry> getCatalogue() const = 0;
  /// The files that the module leaves in the working directory when it starts; needs no host.
  virtual std::vector<ReferenceFile> getReferenceFiles() const = 0;
  /// Whether starts and reloads leave them. They do at first; a tool that doesn't want them says so before the start.
  virtual void switchReferenceFiles(bool on) = 0;

  virtual std::vector<ScriptView> getScripts() const = 0;
  virtual std::vector<TriggerView> getTriggers(std::size_t script) const = 0;
  /// Scripts that have ended or were never taken, in the order in which that happened.
  virtual std::vector<FateView> getFates() const = 0;
  /// What is wrong with each MapScript.json that can't be read.
  virtual std::vector<std::string> getUnreadableConfigurations() const = 0;
  virtual std::vector<DroppedLineView> getDroppedLines() const = 0;
  /// The table of scripted commands, in the order in which they were named first.
  virtual std::vector<CommandBidView> getCommandBids() const = 0;
  virtual std::vector<InstructionView> getInstructions() const = 0;
  /// Puts an entity on the list of those that may not be extinguished.
  virtual void blockExtinguishing(std::uint64_t entityId) = 0;

  /// The line of a script that is being read, tested or run at this moment: what is logged now is about it. Nothing
  /// while no script is at work.
  virtual std::optional<Origin> getOrigin() const = 0;
  /// Hints tell what the language passes over without a word. They are off at first; switching forgets those so far.
  virtual void switchHints(bool on) = 0;
  virtual std::vector<HintView> getHints() const = 0;

  /// Names of a store in its order. Without a script: the global store; empty for kinds that have none and for a script
  /// that doesn't run.
  virtual std::vector<std::string> getNames(std::optional<std::size_t> script, StoreKind kind) const = 0;
  virtual std::optional<float> getVariable(std::optional<std::size_t> script, const std::string& name) const = 0;
  virtual std::optional<std::string> getString(std::optional<std::size_t> script, const std::string& name) const = 0;
  virtual std::optional<std::vector<std::uint64_t>> getList(std::optional<std::size_t> script,
                                                            const std::string& name) const = 0;
  virtual std::optional<bool> getBool(std::size_t script, const std::string& name) const = 0;
  virtual std::optional<std::vector<std::string>> getStringList(std::size_t script, const std::string& name) const = 0;
  /// Value at a path with `.` as separator; of two children of one key the first, elements of an array by their number
  /// from 0.
  virtual std::optional<std::string> getJson(std::size_t script, const std::string& name,
                                             const std::string& path) const = 0;
  /// Number of children there; of the whole variable for an empty path.
  virtual std::optional<std::size_t> getJsonSize(std::size_t script, const std::string& name,
                                                 const std::string& path) const = 0;

  /// Set as a script would, in the script's local stores or, for a name with the global mark, in the global ones, which
  /// needs no script. False if the script doesn't run, or there is no manager.
  virtual bool setVariable(std::optional<std::size_t> script, const std::string& name, float value) = 0;
  virtual bool setString(std::optional<std::size_t> script, const std::string& name, const std::string& value) = 0;
  virtual bool setBool(std::size_t script, const std::string& name, bool value) = 0;
  virtual bool setList(std::optional<std::size_t> script, const std::string& name,
                       const std::vector<std::uint64_t>& ids) = 0;

  /// Those that run, oldest first.
  virtual std::vector<ScenarioEventView> getScenarioEvents() const = 0;
  /// Text ids of the objectives that wait for an entity, in order.
  virtual std::vector<std::string> getEventTargets(std::uint64_t entityId) const = 0;

  /// A document of the module by its name ("basic", "actionbar", "debugger", "audiotracker"), or one that a script has
  /// loaded by its unique id, `#2` behind it for the second of that id. Null if there is none.
  virtual qsf::GuiDocument* findDocument(const std::string& name) const = 0;

  /// What the debugger's reload button does: a new manager reads all files anew and starts the scripts of the running
  /// map.
  virtual void reload() = 0;

  /// Where the module makes its folder `tidemark` with the players' logs, from the next log on; its own folder unless
  /// it is told. Empty is the working directory.
  virtual void setPlayerLogFolder(const std::string& folder) = 0;

  /// For those who test tests: in scripts that are loaded from now on the effect of that name does nothing, the
  /// condition gives that answer. An empty name ends it. Names that nobody knows change nothing.
  virtual void blankEntry(const std::string& name, bool answer) = 0;
};

/// Type and name of the function that the module exports for tools.
using GetToolingFunction = Tooling* (*)();
inline constexpr const char* GET_TOOLING_SYMBOL = "getTidemarkTooling";

}
