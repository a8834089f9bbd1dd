#include "qsf/platform/PlatformSystem.h"

#include "qsf/base/RecordedOperation.h"

namespace qsf {

static const RecordedOperation openUrlExternalCall{"qsf::PlatformSystem::openUrlExternal",
                                                   "address; it is never opened"};

void PlatformSystem::openUrlExternal(const std::string& url) { openUrlExternalCall.record({url}); }

}
