#pragma once
#include "apps/tidemark/peers/StepNetwork.h"
#include "apps/tidemark/platform/Twin.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tidemark::peers {

/// What became of one machine.
struct MachineEnd {
  platform::ExitStatus status;
  std::optional<std::string> result; ///< its last word; nothing if it didn't come so far
};

/// Runs the machines of a game, each in a process of its own, in step until all have ended. One that crashes drops out
/// for the others. `run` is called in the machine's process with its number and its end of the road, on which it sends
/// its result at last; `tell` hears what machines have to tell people, in the order of frames and machines.
std::vector<MachineEnd> runMachines(const StepNetwork::Settings& settings,
                                    const std::function<std::string(unsigned int machine)>& outputFile,
                                    const std::function<int(unsigned int machine, platform::BlockSocket& socket)>& run,
                                    const std::function<void(unsigned int machine, const std::string& lines)>& tell);

}
