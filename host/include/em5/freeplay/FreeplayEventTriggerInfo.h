#pragma once
#include "qsf/Export.h"

namespace em5 {

/// Why an event is triggered. A value.
class QSF_API FreeplayEventTriggerInfo {
public:
  /// Who triggers: 0 the game or a script by itself, 1 a script that drives the event.
  explicit FreeplayEventTriggerInfo(unsigned int source) : mSource(source) {}
  unsigned int getSource() const { return mSource; }

private:
  unsigned int mSource;
};

}
