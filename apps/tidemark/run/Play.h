#pragma once
#include "apps/tidemark/run/RunOptions.h"
#include "apps/tidemark/run/RunReport.h"

#include "em5/multiplayer/Transport.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace tidemark::run {

/// Who plays in this process, and how it reaches the others of a multiplayer game.
struct Seat {
  unsigned int player = 0;
  std::unique_ptr<em5::multiplayer::Transport> transport; ///< null: nobody else plays
  std::vector<std::uint8_t> others;                       ///< the players who are there already
  std::string map;                                        ///< the host's; empty: what options and projects say
  std::ostream* log = nullptr;                            ///< null: standard error
  std::string logFolder;                                  ///< of the players' logs; empty: the working directory
};

/// The map that options name, or the first project that names one.
std::string findMap(const RunOptions& options);
/// Mounts the projects and plays the map for the asked time. The working directory becomes the first project's folder.
/// Throws std::exception for inputs that can't be loaded, UsageError for a language that nobody has texts in.
RunReport play(const RunOptions& options, const std::vector<std::string>& writable, Seat& seat);
/// Whether the run ends the program with code 1.
bool isFaulty(const RunReport& report, const RunOptions& options);

}
