#pragma once
#include "qsf/message/MessageParameters.h"

#include <cstdint>
#include <vector>

namespace script {

/// Whether the command that an EM5_PRE_COMMAND_EXECUTE message announces is an order to extinguish one of the blocked
/// entities. The hand extinguisher is blocked only for units that mind smoke.
bool isExtinguishingBlocked(const qsf::MessageParameters& parameters,
                            const std::vector<std::uint64_t>& blockedEntityIds);

}
