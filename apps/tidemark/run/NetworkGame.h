#pragma once
#include "apps/tidemark/run/Play.h"

namespace tidemark::run {

/// The seat of a machine that serves a game over a real network. Throws std::exception if it can't listen.
Seat serveGame(const RunOptions& options);
/// That of one that joins such a game. Throws std::exception if nobody answers, or the host refuses: the scripts must
/// be the same, and what differs is told by the files' names.
Seat joinGame(const RunOptions& options);

}
