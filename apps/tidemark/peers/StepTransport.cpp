#include "apps/tidemark/peers/StepTransport.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace tidemark::peers {

using em5::multiplayer::Envelope;
using nlohmann::json;

StepTransport::StepTransport(platform::BlockSocket& socket, std::function<std::string()> takeLines)
    : mSocket(socket), mTakeLines(std::move(takeLines)) {}

void StepTransport::send(std::uint8_t receiver, const Envelope& envelope) {
  if (!mLeft) mSent.emplace_back(receiver, envelope.encode());
}

void StepTransport::inject(std::uint8_t sender, Envelope envelope) {
  mInjected.push_back({Event::Kind::MESSAGE, sender, std::move(envelope)});
}

std::vector<StepTransport::Event> StepTransport::receive() {
  std::vector<Event> events = std::exchange(mInjected, {});
  if (mAlone) return events;
  json frame = {{"left", mLeft}, {"lines", json::binary({})}, {"sent", json::array()}};
  const std::string lines = mTakeLines();
  frame["lines"] = json::binary({lines.begin(), lines.end()});
  for (auto& [receiver, bytes] : mSent)
    frame["sent"].push_back({{"to", receiver}, {"bytes", json::binary(std::move(bytes))}});
  mSent.clear();
  std::optional<std::vector<std::uint8_t>> answer;
  if (mSocket.write(json::to_cbor(frame))) answer = mSocket.read();
  if (!answer) {
    mAlone = true;
    return events;
  }
  for (const json& arrival : json::from_cbor(*answer)) {
    const auto sender = arrival.at("from").get<std::uint8_t>();
    if (arrival.at("left").get<bool>()) {
      events.push_back({Event::Kind::LEFT, sender, {}});
      continue;
    }
    const auto& bytes = arrival.at("bytes").get_binary();
    if (auto envelope = Envelope::decode(bytes.data(), bytes.size()))
      events.push_back({Event::Kind::MESSAGE, sender, std::move(*envelope)});
  }
  return events;
}

void sendResult(platform::BlockSocket& socket, const std::string& lines, const std::string& result) {
  socket.write(json::to_cbor({{"lines", json::binary({lines.begin(), lines.end()})},
                              {"result", json::binary({result.begin(), result.end()})}}));
}

}
