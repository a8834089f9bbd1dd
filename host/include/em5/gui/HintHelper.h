#pragma once
#include "qsf/base/Time.h"

#include <cstdint>
#include <deque>
#include <string>

namespace em5 {

/// Hints and the supervisor's messages, which the player reads. Each is noted in the call recorder: a hint with its
/// text, the supervisor's number and the seconds, a message with its text and whether it is only heard.
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

  struct SupervisorMessage {
    std::string text;
    bool audioOnly;
    qsf::Time displayTime; ///< left until it goes
  };
  /// Stays up as a hint of 10 seconds does.
  static void showSupervisorMessage(const std::string& text, bool audioOnly = false);
  /// Messages that are up, oldest first.
  static const std::deque<SupervisorMessage>& getCurrentSupervisorMessages();

  /// The localised text of an id; of one that holds several texts with `|` between, one is drawn from the game's random
  /// source. A text that is no id comes back as it is.
  static std::string getRandomStringOfIdString(const std::string& idString);

  /// For the host: lets real time pass for both.
  static void update(qsf::Time timePassed);
  /// For the host: takes all off, at a game's end.
  static void clear();
};

}
