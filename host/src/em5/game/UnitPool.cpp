#include "em5/game/UnitPool.h"

#include "em5/base/JsonMembers.h"
#include "em5/order/OrderInfo.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Map.h"

#include <algorithm>
#include <limits>

namespace em5 {

namespace {

const qsf::RecordedOperation increaseCall{"em5::UnitPool::increaseNumberAvailable", "order info, number"};

constexpr double MAXIMUM_UNITS = 1000;

/// Null if there is none. The name may be whole or its last part.
const qsf::BaseAsset* findPoolAsset(const std::string& name) {
  const qsf::BaseAsset* newest = nullptr;
  for (const auto& project : qsf::Qsf::instance()->getProjectManager().getProjects())
    for (const qsf::BaseAsset* asset : project->getAssets()) {
      const std::string& whole = asset->getName();
      if (whole.find("/unit_pool/") != std::string::npos && (whole == name || whole.ends_with("/" + name)))
        newest = asset;
    }
  return newest;
}

}

int UnitPool::getNumberMaxAvailable(const OrderInfo& orderInfo) const {
  const auto found = mMaxima.find(orderInfo.getName());
  return found == mMaxima.end() ? 0 : found->second;
}

int UnitPool::getNumberInMap(const OrderInfo& orderInfo) const {
  const auto found = mUnits.find(orderInfo.getName());
  if (found == mUnits.end()) return 0;
  const qsf::Map& map = qsf::getMainMap();
  return static_cast<int>(
      std::ranges::count_if(found->second, [&](std::uint64_t id) { return map.getEntityById(id); }));
}

int UnitPool::getNumberAvailable(const OrderInfo& orderInfo) const {
  return std::max(0, getNumberMaxAvailable(orderInfo) - getNumberInMap(orderInfo));
}

void UnitPool::increaseNumberAvailable(const std::string& orderName, int number) {
  increaseCall.record({orderName, std::to_string(number)});
  int& maximum = mMaxima[orderName];
  maximum =
      static_cast<int>(std::clamp<std::int64_t>(std::int64_t{maximum} + number, 0, std::numeric_limits<int>::max()));
}

void UnitPool::registerUnitInMap(const OrderInfo& orderInfo, std::uint64_t entityId) {
  mUnits[orderInfo.getName()].insert(entityId);
}

void UnitPool::unregisterUnitInMap(const OrderInfo& orderInfo, std::uint64_t entityId) {
  if (const auto found = mUnits.find(orderInfo.getName()); found != mUnits.end()) found->second.erase(entityId);
}

bool UnitPool::load(const std::string& name) {
  const qsf::BaseAsset* asset = findPoolAsset(name);
  if (!asset) return false;
  const qsf::Json json = qsf::readJsonFile(asset->getFile());
  const qsf::JsonPlace root(json, asset->getFile());
  root.expectObject({"units"});
  const qsf::JsonPlace units = root.member("units");
  units.expectArray();
  std::map<std::string, int> maxima;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const qsf::JsonPlace unit = units.element(i);
    unit.expectObject({"orderInfo", "maximum"});
    maxima[requiredText(unit, "orderInfo")] = static_cast<int>(numberOr(unit, "maximum", {0, MAXIMUM_UNITS}, 1));
  }
  mMaxima = std::move(maxima);
  return true;
}

}
