#pragma once
#include "qsf/base/Time.h"

#include <string>

namespace qsf {
class GuiDocument;
}

namespace script {

/// One text that runs in an element of a document.
struct ShowTextRecord {
  std::string elementId;
  float fadeTime = 0;   ///< seconds
  float totalTime = 0;  ///< seconds
  qsf::Time startTime;  ///< of the clock that the texts share
  std::string trigger;  ///< kept because scripts name one; nothing activates it
  bool fadeMode = true; ///< fades; else it is typed
  std::string message;
  int shownLength = -1; ///< bytes of the message that are typed

  /// Shows the text as it is at that time of the clock. False when it is over, and hidden. Without its element it
  /// stays.
  bool update(qsf::GuiDocument& document, qsf::Time clock);
};

}
