#include "game_plugin/scenario/lifecycle/PreCommandCheck.h"

#include "em5/command/CommandContext.h"
#include "em5/map/EntityHelper.h"
#include "em5/order/OrderInfo.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

#include <algorithm>

namespace script {

namespace {

constexpr qsf::StringHash CANNON_COMMAND{"em5::ExtinguishWithCannonCommand"};
constexpr qsf::StringHash HOSE_COMMAND{"em5::ExtinguishWithHoseCommand"};
constexpr qsf::StringHash LADDER_COMMAND{"em5::DLKExtinguishCommand"};
constexpr qsf::StringHash EXTINGUISHER_COMMAND{"em5::ExtinguishWithExtinguisherCommand"};

bool mindsSmoke(const qsf::MessageParameters& parameters) {
  const em5::CommandContext* context = nullptr;
  if (!parameters.getParameter("context", context) || !context || !context->mConsiderSmoke) return false;
  qsf::Entity* unit = qsf::getMainMap().getEntityById(parameters.getFilter(2));
  const em5::OrderInfo* orderInfo = unit ? em5::EntityHelper(*unit).getOrderInfo() : nullptr;
  return orderInfo && !orderInfo->isTagSet("IgnoreSmoke");
}

}

bool isExtinguishingBlocked(const qsf::MessageParameters& parameters,
                            const std::vector<std::uint64_t>& blockedEntityIds) {
  const std::uint64_t command = parameters.getFilter(1);
  const bool concerned = command == CANNON_COMMAND.getHash() || command == HOSE_COMMAND.getHash() ||
                         command == LADDER_COMMAND.getHash() ||
                         (command == EXTINGUISHER_COMMAND.getHash() && mindsSmoke(parameters));
  return concerned &&
         std::find(blockedEntityIds.begin(), blockedEntityIds.end(), parameters.getFilter(3)) != blockedEntityIds.end();
}

}
