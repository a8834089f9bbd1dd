#pragma once
#include "em5/game/GameSessionConfiguration.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tidemark::run {

/// What `tidemark run` was asked for.
struct RunOptions {
  std::vector<std::string> projects; ///< folders
  std::string map;                   ///< empty: what the projects name
  double seconds = 10;               ///< simulated
  double tick = 0.05;                ///< seconds of a frame
  enum class Pace { FAST, REAL_TIME } pace = Pace::FAST;
  enum class Program { GAME, EDITOR } program = Program::GAME;
  em5::GameModeType gameMode = em5::GameModeType::FREEPLAY_ENDLESS;
  std::string language = "en";
  std::uint64_t seed = 1;
  unsigned int machines = 1;        ///< of a multiplayer game in step, on this computer
  unsigned int delay = 0;           ///< of their network, in frames
  unsigned int loss = 0;            ///< of their network, in percent
  unsigned int syncRate = 10;       ///< data cache updates of the host in a second
  std::optional<std::string> serve; ///< address at which a game over a real network is offered
  std::optional<std::string> join;  ///< address of one to take part in
  bool allowDifference = false;     ///< other machines may have other scripts
  int logLevel = 2;
  enum class LogFormat { TEXT, JSON_LINES } logFormat = LogFormat::TEXT;
  bool hints = true;      ///< tell what the language passes over without a word
  bool strict = false;    ///< hints count as faults
  bool writeDocs = false; ///< the module leaves its reference files in the working directory, as in the game
  std::vector<std::string> allowWrite; ///< folders in which scripts may write beside the working directory; absolute
  std::string report;                  ///< file, or - for standard output; empty: none
  std::string screens;                 ///< folder for pages of the visible documents; empty: none
  std::vector<double> screensAt;       ///< seconds at which such are made, beside the end
};

}
