#pragma once
#include "game_plugin/scenario/lifecycle/ScriptedCommands.h"
#include "game_plugin/scenario/lifecycle/SuitChangeGuard.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/job/JobProxy.h"
#include "qsf/message/MessageProxy.h"

#include <boost/property_tree/ptree_fwd.hpp>

#include <memory>
#include <string>
#include <vector>

namespace em5 {
class Mod;
}

namespace script {

class ProgramCache;
class ScenarioMessageReciever;

/// When a script's handler is made.
enum class ScriptMode : std::uint32_t {
  GAME_STARTUP = 0,
  MAP_STARTUP = 1,
  TEMPORARY = 2,
  EDITOR_STARTUP = 3,
  MAP_STARTUP_SIMULATION = 4,
  UNKNOWN = 5 ///< any other text; the entry is refused
};

/// "GAME_STARTUP" and so on, compared exactly.
ScriptMode toScriptMode(std::string_view text);
std::string_view toText(ScriptMode mode);

/// A script that the manager knows. On the heap; entries of a manager live until it ends or, temporary ones, until they
/// stop.
struct MapScriptEntry {
  ScriptMode mode = ScriptMode::UNKNOWN;
  std::vector<std::string> maps;            ///< local asset names, or "All"
  std::string path;                         ///< absolute file; for a temporary script the path as given
  std::string globalNamePrefix;             ///< project, `/`, configured path; empty for a temporary script
  std::shared_ptr<ScriptDocument> document; ///< made at parse time
  ScenarioHandler* handler = nullptr;       ///< null while the script doesn't run
  std::string key;     ///< child name in MapScript.json, for a temporary script its path; tools show it
  std::string project; ///< name of the mod's project; tools show it
};

/// Decides which scripts exist and when they run: reads the MapScript.json of each enabled mod, parses every script
/// that it lists, and makes handlers as their modes demand. Owns the global stores. One lives at a time, made by the
/// plug-in. It may be destroyed while one of its scripts ticks; that script's effects then end.
class MapScriptManager : public ScriptDirectory {
public:
  /// Reads all configurations; also leaves the reference files in the working directory.
  MapScriptManager();
  explicit MapScriptManager(bool writeDocumentation);
  /// Runs DoShutdown, stops what it has left running, and lets documents and stores go.
  virtual ~MapScriptManager();
  MapScriptManager(const MapScriptManager&) = delete;
  MapScriptManager& operator=(const MapScriptManager&) = delete;

  /// The living manager, or null.
  static MapScriptManager* get();
  /// A reload: destroys the living manager, if there is one, and makes a new one, which reads all files anew and leaves
  /// the reference files if told to.
  static MapScriptManager& replace(bool writeDocumentation);
  /// The authors' reload in a game: replaces the manager and starts the scripts of the running map.
  static void reloadInGame();

  void LoadConfiguration(bool writeDocumentation);
  /// Starts the scripts of the main map. Called at GAME_STARTUP_FINISHED, and directly after a reload.
  void StartMapScripts();
  /// Starts one instance of the script for each known script with another path: the multiplication is what scripts
  /// know.
  void StartTemporaryScript(const std::string& path);
  /// Stops the script instances with that path. The entry behind a removed one is skipped in this walk.
  void stopScript(const std::string& path);
  /// Stops all scripts; temporary scripts are forgotten. The entry behind a forgotten one is skipped and goes on.
  void DoShutdown();

  std::pair<ScenarioHandler*, const ScenarioTrigger*> findTrigger(std::uint32_t hash) const override;

  const std::vector<MapScriptEntry*>& getScriptEntries() const { return mScriptEntries; }
  const std::shared_ptr<GlobalStores>& getGlobalStores() const { return mGlobalStores; }
  const ProgramCache& programs() const { return *mPrograms; }
  ScriptedCommands& getScriptedCommands() { return mScriptedCommands; }
  const ScriptedCommands& getScriptedCommands() const { return mScriptedCommands; }
  /// Entities that may not be extinguished; emptied at each start and end of a game.
  std::vector<std::uint64_t>& getBlockedEntityIds() { return mBlockedEntityIds; }
  /// Off whenever a game ends.
  SuitChangeGuard& getSuitChangeGuard() { return mSuitChangeGuard; }

  /// More instances than this at a time, or more starts in a frame, are refused with an error: two scripts that start
  /// each other multiply without end.
  static constexpr std::size_t MAXIMUM_SCRIPTS = 2000;

private:
  void readMod(const em5::Mod& mod);
  void readScripts(const em5::Mod& mod, const boost::property_tree::ptree& root);
  bool readScript(const em5::Mod& mod, const boost::property_tree::ptree& root, MapScriptEntry& entry) const;
  void parseScripts();
  std::shared_ptr<ScriptDocument> loadDocument(const MapScriptEntry& entry);
  void makeMessageReciever();
  void startGameScript();
  void startScriptsOfMap(bool (*isStarted)(ScriptMode));
  void startScript(MapScriptEntry& entry);
  /// Takes the entry off the list; what it was running has been stopped. Tools are told what became of it, if anything.
  void removeEntry(std::size_t index, const std::string& fate);
  /// Stops and removes all entries.
  void forgetScripts();
  bool mayStartAnother(const std::string& path);
  void editorJob(const qsf::JobArguments& arguments);
  void onGameStartupFinished();
  void watchSelection();
  void makeGui();

  std::shared_ptr<GlobalStores> mGlobalStores = std::make_shared<GlobalStores>();
  std::vector<MapScriptEntry*> mScriptEntries;
  /// Handlers that a shutdown has skipped and whose entry runs a new one since: they go on until the manager ends.
  std::vector<ScenarioHandler*> mLeftRunning;
  std::unique_ptr<ProgramCache> mPrograms;
  ScriptedCommands mScriptedCommands;
  std::unique_ptr<ScenarioMessageReciever> mMessageReciever; ///< while scripts of a map or of the editor run
  qsf::MessageProxy mGameStartupMessageProxy;
  qsf::MessageProxy mGameShutdownMessageProxy;
  qsf::JobProxy mSelectionJobProxy;
  std::vector<std::uint64_t> mBlockedEntityIds;
  SuitChangeGuard mSuitChangeGuard;
  qsf::MessageProxy mPreCommandMessageProxy;
  std::size_t mStartsInFrame = 0; ///< of temporary scripts, those that have stopped included
  bool mBoundTold = false;
  qsf::JobProxy mFrameJobProxy;
  qsf::Time mEditorDelay;
  qsf::JobProxy mEditorJobProxy;
};

}
