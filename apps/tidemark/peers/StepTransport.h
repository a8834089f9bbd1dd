#pragma once
#include "apps/tidemark/platform/Twin.h"

#include "em5/multiplayer/Transport.h"

#include <functional>
#include <string>

namespace tidemark::peers {

/// One machine's end of a game in step: at the start of each frame it hands over what was sent since the one before,
/// and waits for what arrives now. Lives in the machine's process, owned by its session.
class StepTransport : public em5::multiplayer::Transport {
public:
  /// The socket outlives it. `takeLines` gives what the machine has to tell people since it was asked last.
  StepTransport(platform::BlockSocket& socket, std::function<std::string()> takeLines);

  void send(std::uint8_t receiver, const em5::multiplayer::Envelope& envelope) override;
  std::vector<Event> receive() override;

  /// The machine drops out without a word: nobody hears of it any more, and it of nobody.
  void leave() { mLeft = true; }
  /// A message that comes from outside; it arrives first in the next frame.
  void inject(std::uint8_t sender, em5::multiplayer::Envelope envelope);

private:
  platform::BlockSocket& mSocket;
  std::function<std::string()> mTakeLines;
  std::vector<std::pair<std::uint8_t, std::vector<std::uint8_t>>> mSent;
  std::vector<Event> mInjected;
  bool mLeft = false;
  bool mAlone = false; ///< the others' process has gone
};

/// A machine's last word, for whoever has started it.
void sendResult(platform::BlockSocket& socket, const std::string& lines, const std::string& result);

}
