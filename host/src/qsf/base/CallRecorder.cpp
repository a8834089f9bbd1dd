#include "qsf/base/CallRecorder.h"

namespace qsf {

namespace {

/// A script may record something in every frame of a long game: beyond twice this number the oldest half goes.
constexpr std::ptrdiff_t KEPT_CALLS = 65536;

}

void CallRecorder::record(std::string operation, std::vector<std::string> arguments) {
  if (mCalls.size() >= 2 * KEPT_CALLS) mCalls.erase(mCalls.begin(), mCalls.begin() + KEPT_CALLS);
  mCalls.push_back({std::move(operation), std::move(arguments)});
}

}
