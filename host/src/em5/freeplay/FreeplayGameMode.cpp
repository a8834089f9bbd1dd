#include "em5/freeplay/FreeplayGameMode.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

static const qsf::RecordedOperation toggleSeasonalEventCall{"em5::FreeplayGameMode::toggleSeasonalEvent",
                                                            "name, `0` or `1`"};

void FreeplayGameMode::toggleSeasonalEvent(const std::string& name, bool enable) {
  if (enable)
    mSeasonalEvents.insert(name);
  else
    mSeasonalEvents.erase(name);
  toggleSeasonalEventCall.record({name, enable ? "1" : "0"});
}

}
