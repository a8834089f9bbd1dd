#pragma once
#include "em5/game/GameSessionConfiguration.h"
#include "em5/plugin/ModSystem.h"
#include "qsf/base/Time.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qsf {
class Map;
class Plugin;
class Qsf;
}

namespace em5 {

class NetworkManager;

namespace multiplayer {
class SessionBase;
class Transport;
}

/// A whole run of the game or the editor, for programs: makes the host, mounts projects, loads plug-ins, starts games
/// and runs frames on an exact simulated clock. One lives at a time. The order of a run:
///
///   construct -> mountBaseProject -> mountMod ... -> startup -> loadPlugin ... -> startGame -> runFrame ... -> destroy
///
/// Destroying it ends the running game (plug-ins hear GAME_SHUTDOWN_STARTING), shuts plug-ins down, then the host.
class QSF_API HostSession {
public:
  enum class Kind { GAME, EDITOR };
  struct Options {
    Kind kind = Kind::GAME;
    std::uint64_t seed = 1;
    std::string language = "en";
    GameModeType gameMode = GameModeType::FREEPLAY_ENDLESS;
    std::string account;
    unsigned int players = 1;     ///< of the game
    unsigned int localPlayer = 0; ///< the index of the one at this machine
    int logThreshold = 2;         ///< severity from which lines are logged, 0 to 5
  };

  explicit HostSession(const Options& options);
  ~HostSession();
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

  qsf::Qsf& getQsf() const;
  const Options& getOptions() const;

  /// The project `em5`, which is no modification. First of all projects. Throws qsf::LoadError.
  void mountBaseProject(const std::string& directory);
  /// Throws qsf::LoadError; nothing is mounted then.
  Mod& mountMod(const std::string& directory, ModState state = {});

  /// Ends the setup: reads the texts of the language from the mounted projects, then a game gets its em5::EmergencyGui,
  /// an editor its qsf::editor::Application. Throws qsf::LoadError for a faulty text file.
  void startup();
  /// Loads, installs and starts a plug-in library (qsf::PluginSystem tells which factory it needs). False if its
  /// install or startup refused. Throws qsf::LoadError if the library or its factory can't be found.
  bool loadPlugin(const std::string& libraryPath);

  /// Takes part in a session with other machines from now on: as host if the local player is 0, else as a client.
  /// Called between loading the plug-ins and the first game; the session lasts as long as the host does.
  multiplayer::SessionBase& createSession(std::unique_ptr<multiplayer::Transport> transport,
                                          const std::vector<std::uint8_t>& others);
  NetworkManager& getNetworkManager() const;

  /// Called on every start of a game, when the map is loaded and before its components start; places what the program
  /// wants there. What it throws leaves startGame.
  void setMapPreparation(std::function<void(qsf::Map&)> preparation);

  /// Starts a game (an editing session) on the map asset of that name: loads it, runs the preparation, starts the
  /// components, emits GAME_STARTUP_FINISHED (games only). A game that runs is ended first. Throws qsf::LoadError; then
  /// no game runs.
  void startGame(const std::string& mapLocalAssetName);
  /// Ends the game: emits GAME_SHUTDOWN_STARTING while it still exists (games only), then empties the map. Nothing
  /// without a game.
  void endGame();
  /// True from startGame to endGame, in the editor too.
  bool isGameRunning() const;

  /// One frame: input, network, message-driven work, job managers, what goes to other machines, then what waited for
  /// the frame's end (destroyed entities, a wished map change). A wished map that can't be loaded is logged at severity
  /// 4; an unknown one leaves the game as it is, a faulty one ends it.
  void runFrame(qsf::Time tick);

  /// From the next frame on.
  void setPaused(bool paused);
  bool isPaused() const;

  /// Wishes for the end of the running frame, or at once between frames. They throw nothing; see runFrame.
  void requestMap(const std::string& mapLocalAssetName);
  void requestRestart();

  /// Sum of the ticks of all frames since construction, paused ones included.
  qsf::Time getTime() const;
  std::uint64_t getFrameCount() const;

private:
  struct Internals;
  std::unique_ptr<Internals> mInternals;
};

}
