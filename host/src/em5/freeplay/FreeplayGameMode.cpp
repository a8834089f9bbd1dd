#include "em5/freeplay/FreeplayGameMode.h"

#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"

namespace em5 {

void FreeplayGameMode::toggleSeasonalEvent(const std::string& name, bool enable) {
  if (enable)
    mSeasonalEvents.insert(name);
  else
    mSeasonalEvents.erase(name);
  if (qsf::Qsf* host = qsf::Qsf::instance())
    host->getCallRecorder().record("em5::FreeplayGameMode::toggleSeasonalEvent", {name, enable ? "1" : "0"});
}

}
