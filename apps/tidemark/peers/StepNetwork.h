#pragma once
#include <cstdint>
#include <map>
#include <random>
#include <vector>

namespace tidemark::peers {

/// The network of a game whose machines run in step: what is sent in a frame arrives a fixed number of frames later, or
/// later still if it was lost on the way, and everything between two machines stays in order. The same messages and
/// settings always give the same arrivals.
class StepNetwork {
public:
  struct Settings {
    unsigned int machines = 2;
    unsigned int delay = 0; ///< frames beyond the next one
    unsigned int loss = 0;  ///< percent of what is sent, 0 to 99
    std::uint64_t seed = 1;
  };
  explicit StepNetwork(const Settings& settings) : mSettings(settings), mRandom(settings.seed) {}

  struct Arrival {
    unsigned int sender = 0;
    bool left = false; ///< no message: the sender has gone
    std::vector<std::uint8_t> bytes;
  };

  /// Messages of one frame are given in the order of the machines, and of their sending.
  void send(std::uint64_t frame, unsigned int sender, unsigned int receiver, std::vector<std::uint8_t> bytes);
  /// The machine is gone from this frame on: what it sent before still arrives, behind it the word that it has left.
  void leave(std::uint64_t frame, unsigned int machine);
  /// What the machine takes in that frame, by ascending sender.
  std::vector<Arrival> take(std::uint64_t frame, unsigned int receiver);

private:
  struct Road {
    std::uint64_t lastArrival = 0;
    std::vector<std::pair<std::uint64_t, Arrival>> underWay; ///< frame of arrival, ascending
  };
  void put(std::uint64_t frame, unsigned int sender, unsigned int receiver, Arrival arrival);

  Settings mSettings;
  std::mt19937_64 mRandom;
  std::map<std::pair<unsigned int, unsigned int>, Road> mRoads; ///< by receiver, sender
  std::vector<bool> mLeft = std::vector<bool>(mSettings.machines);
};

}
