#pragma once
#include "qsf/base/Time.h"

namespace qsf {

/// What a job is told in each call.
class QSF_API JobArguments {
public:
  explicit JobArguments(Time timePassed) : mTimePassed(timePassed) {}
  /// Simulated time since the job's last call (since the last frame for a job without a time between calls).
  Time getTimePassed() const { return mTimePassed; }

private:
  Time mTimePassed;
};

}
