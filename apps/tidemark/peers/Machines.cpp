#include "apps/tidemark/peers/Machines.h"

#include <nlohmann/json.hpp>

namespace tidemark::peers {

namespace {

using nlohmann::json;

struct Machine {
  platform::Twin twin;
  bool running = true;
  std::optional<std::string> result;
};

std::string textOf(const json& value) {
  const auto& bytes = value.get_binary();
  return {bytes.begin(), bytes.end()};
}

class Game {
public:
  using Tell = std::function<void(unsigned int, const std::string&)>;
  Game(const StepNetwork::Settings& settings, std::vector<Machine>& machines, const Tell& tell)
      : mNetwork(settings), mMachines(machines), mTell(tell) {}

  /// One frame of all machines; false if none runs any more.
  bool step() {
    std::vector<unsigned int> waiting;
    for (unsigned int i = 0; i < mMachines.size(); ++i)
      if (mMachines[i].running && hear(i)) waiting.push_back(i);
    for (const unsigned int i : waiting)
      answer(i);
    ++mFrame;
    return !waiting.empty();
  }

private:
  /// Takes what the machine has to say. True if it waits for an answer.
  bool hear(unsigned int index) {
    Machine& machine = mMachines[index];
    const auto block = machine.twin.socket().read();
    if (!block) {
      drop(index);
      return false;
    }
    const json said = json::from_cbor(*block);
    if (const std::string lines = textOf(said.at("lines")); !lines.empty()) mTell(index, lines);
    if (said.contains("result")) {
      // It has come to its end; what it would have heard is of no more use, and the others don't miss it.
      machine.result = textOf(said.at("result"));
      machine.running = false;
      return false;
    }
    for (const json& message : said.at("sent"))
      mNetwork.send(mFrame, index, message.at("to").get<unsigned int>(), message.at("bytes").get_binary());
    if (said.at("left").get<bool>()) mNetwork.leave(mFrame, index);
    return true;
  }

  void answer(unsigned int index) {
    json arrivals = json::array();
    for (StepNetwork::Arrival& arrival : mNetwork.take(mFrame + 1, index))
      arrivals.push_back(
          {{"from", arrival.sender}, {"left", arrival.left}, {"bytes", json::binary(std::move(arrival.bytes))}});
    if (!mMachines[index].twin.socket().write(json::to_cbor(arrivals))) drop(index);
  }

  void drop(unsigned int index) {
    mMachines[index].running = false;
    mNetwork.leave(mFrame, index);
  }

  StepNetwork mNetwork;
  std::vector<Machine>& mMachines;
  const Tell& mTell;
  std::uint64_t mFrame = 0; ///< the one that the machines have run last
};

}

std::vector<MachineEnd> runMachines(const StepNetwork::Settings& settings,
                                    const std::function<std::string(unsigned int machine)>& outputFile,
                                    const std::function<int(unsigned int machine, platform::BlockSocket& socket)>& run,
                                    const std::function<void(unsigned int machine, const std::string& lines)>& tell) {
  std::vector<Machine> machines;
  for (unsigned int i = 0; i < settings.machines; ++i)
    machines.push_back(
        {platform::Twin::start(outputFile(i), [&run, i](platform::BlockSocket& socket) { return run(i, socket); }),
         true,
         {}});
  Game game(settings, machines, tell);
  while (game.step()) {
  }
  std::vector<MachineEnd> ends;
  for (Machine& machine : machines) {
    machine.twin.socket().close();
    ends.push_back({machine.twin.wait(), std::move(machine.result)});
  }
  return ends;
}

}
