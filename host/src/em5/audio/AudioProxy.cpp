#include "em5/audio/AudioProxy.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

namespace {

const qsf::RecordedOperation synchronizeCall{"em5::AudioProxy::synchronizeWithMultiplay", "`0` or `1`"};

}

void AudioProxy::synchronizeWithMultiplay(bool value) { synchronizeCall.record({value ? "1" : "0"}); }

}
