#include "em5/audio/AudioProxy.h"

#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"

namespace em5 {

void AudioProxy::synchronizeWithMultiplay(bool value) {
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    host->getCallRecorder().record("em5::AudioProxy::synchronizeWithMultiplay", {value ? "1" : "0"});
}

}
