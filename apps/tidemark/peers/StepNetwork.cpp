#include "apps/tidemark/peers/StepNetwork.h"

#include <algorithm>

namespace tidemark::peers {

namespace {

/// What a message that is lost waits until it is sent again.
constexpr std::uint64_t FRAMES_OF_A_LOSS = 2;

}

void StepNetwork::send(std::uint64_t frame, unsigned int sender, unsigned int receiver,
                       std::vector<std::uint8_t> bytes) {
  if (mLeft[sender] || mLeft[receiver]) return;
  put(frame, sender, receiver, {sender, false, std::move(bytes)});
}

void StepNetwork::leave(std::uint64_t frame, unsigned int machine) {
  if (mLeft[machine]) return;
  for (unsigned int other = 0; other < mSettings.machines; ++other)
    if (other != machine && !mLeft[other]) put(frame, machine, other, {machine, true, {}});
  mLeft[machine] = true;
  for (auto& [ends, road] : mRoads)
    if (ends.first == machine) road.underWay.clear();
}

void StepNetwork::put(std::uint64_t frame, unsigned int sender, unsigned int receiver, Arrival arrival) {
  std::uint64_t at = frame + 1 + mSettings.delay;
  // Plain arithmetic on the generator's numbers: the library's distributions differ from one system to the next.
  while (mRandom() % 100 < mSettings.loss)
    at += FRAMES_OF_A_LOSS;
  Road& road = mRoads[{receiver, sender}];
  road.lastArrival = std::max(road.lastArrival, at);
  road.underWay.emplace_back(road.lastArrival, std::move(arrival));
}

std::vector<StepNetwork::Arrival> StepNetwork::take(std::uint64_t frame, unsigned int receiver) {
  std::vector<Arrival> arrivals;
  for (auto road = mRoads.lower_bound({receiver, 0}); road != mRoads.end() && road->first.first == receiver; ++road) {
    auto& underWay = road->second.underWay;
    const auto due =
        std::find_if(underWay.begin(), underWay.end(), [&](const auto& waiting) { return waiting.first > frame; });
    for (auto waiting = underWay.begin(); waiting != due; ++waiting)
      arrivals.push_back(std::move(waiting->second));
    underWay.erase(underWay.begin(), due);
  }
  return arrivals;
}

}
