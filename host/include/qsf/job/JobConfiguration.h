#pragma once
#include "qsf/Export.h"

namespace qsf::jobs {

/// How a job is called. The headless host calls every job once a frame; the value is kept for what asks for it.
class QSF_API JobConfiguration {
public:
  explicit JobConfiguration(unsigned int value = 0) : mValue(value) {}
  unsigned int getValue() const { return mValue; }

private:
  unsigned int mValue;
};

}
