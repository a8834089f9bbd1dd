#pragma once
#include "qsf/audio/AudioProxy.h"

namespace em5 {

/// Plays sounds in the game.
class QSF_API AudioProxy : public qsf::AudioProxy {
public:
  /// Tells the other machines of a session what the proxy does now; noted in the call recorder.
  void synchronizeWithMultiplay(bool value);
};

}
