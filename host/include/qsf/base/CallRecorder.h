#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace qsf {

/// Keeps calls of operations whose effect a headless host cannot show: hints, cursors, sounds, achievements. Each is
/// declared as a RecordedOperation. Owned by Qsf.
class QSF_API CallRecorder {
public:
  struct Call {
    std::string operation; ///< qualified name, `em5::HintHelper::showHint`
    std::vector<std::string> arguments;
  };

  void record(std::string operation, std::vector<std::string> arguments = {});
  const std::vector<Call>& getCalls() const { return mCalls; }

private:
  std::vector<Call> mCalls;
};

}
