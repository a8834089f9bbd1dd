#pragma once
#include "qsf/base/Time.h"

#include <cstdint>

namespace qsf {

/// What an update is told about time.
class QSF_API Clock {
public:
  explicit Clock(Time timePassed = Time(), std::uint32_t signalCounter = 0)
      : mTimePassed(timePassed), mSignalCounter(signalCounter) {}
  /// Simulated time since the last update.
  Time getTimePassed() const { return mTimePassed; }
  /// Number of this update.
  std::uint32_t getSignalCounter() const { return mSignalCounter; }

private:
  Time mTimePassed;
  std::uint32_t mSignalCounter;
};

}
