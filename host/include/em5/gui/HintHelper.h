#pragma once
#include "qsf/base/Time.h"

#include <cstdint>
#include <deque>
#include <string>

namespace em5 {

/// Hints that the player reads. Each is noted in the call recorder with its text, the supervisor's number and the
/// seconds.
class QSF_API HintHelper {
public:
  struct Hint {
    std::string text;
    std::uint32_t supervisor; ///< uninitialised: no supervisor shows
    qsf::Time displayTime;    ///< left until it goes
  };

  /// Zero displays for 10 seconds. The hint stays up until its time is over or 50 newer ones have pushed it out.
  static void showHint(const std::string& text, std::uint32_t supervisor, qsf::Time displayTime);
  /// Hints on the screen, oldest first.
  static const std::deque<Hint>& getCurrentHints();

  /// For the host: lets real time pass for the hints.
  static void update(qsf::Time timePassed);
  /// For the host: takes all hints off, at a game's end.
  static void clear();
};

}
