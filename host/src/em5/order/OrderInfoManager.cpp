#include "em5/order/OrderInfoManager.h"

#include "em5/base/JsonMembers.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"

namespace em5 {

namespace {

/// `<project>/order_info/<category>/<name>`
bool isOrderInfoAsset(const qsf::BaseAsset& asset) {
  const std::string& name = asset.getName();
  const std::size_t type = name.find('/');
  return type != std::string::npos && name.compare(type + 1, 11, "order_info/") == 0;
}

void readStartPersonnel(const qsf::JsonPlace& list, OrderInfo& info) {
  list.expectArray();
  for (std::size_t i = 0; i < list.size(); ++i) {
    const qsf::JsonPlace place = list.element(i);
    place.expectObject({"orderInfo", "count"});
    const double count = numberOr(place, "count", {0, 1000}, 1);
    info.getStartPersonnelListForWriting().push_back(
        {requiredText(place, "orderInfo"), static_cast<std::int32_t>(count)});
  }
}

int readDepartment(const qsf::JsonPlace& place) {
  static constexpr std::string_view DEPARTMENTS[] = {"", "fire", "ambulance", "police", "tech"};
  const auto* found = std::ranges::find(DEPARTMENTS, place.asText());
  if (found == std::end(DEPARTMENTS)) place.fail("\"fire\", \"ambulance\", \"police\" or \"tech\" is expected here");
  return static_cast<int>(found - std::begin(DEPARTMENTS));
}

std::unique_ptr<OrderInfo> readOrderInfo(const std::string& file) {
  const qsf::Json json = qsf::readJsonFile(file);
  const qsf::JsonPlace root(json, file);
  root.expectObject({"name", "prefab", "department", "miniMapIcon", "personnelSpace", "tags", "startPersonnel"});
  auto info = std::make_unique<OrderInfo>(requiredText(root, "name"));
  info->setPrefab(textOr(root, "prefab", ""));
  if (root.has("department")) info->setDepartment(readDepartment(root.member("department")));
  info->setMiniMapIconType(textOr(root, "miniMapIcon", ""));
  info->setPersonnelSpace(static_cast<int>(numberOr(root, "personnelSpace", {0, 1000}, 0)));
  if (root.has("tags"))
    for (const std::string& tag : asTexts(root.member("tags")))
      info->setTag(tag);
  if (root.has("startPersonnel")) readStartPersonnel(root.member("startPersonnel"), *info);
  return info;
}

}

void OrderInfoManager::load() {
  std::vector<std::unique_ptr<OrderInfo>> infos;
  for (const auto& project : qsf::Qsf::instance()->getProjectManager().getProjects())
    for (const qsf::BaseAsset* asset : project->getAssets())
      if (isOrderInfoAsset(*asset)) infos.push_back(readOrderInfo(asset->getFile()));
  mOrderInfos = std::move(infos);
}

const OrderInfo* OrderInfoManager::getOrderInfoById(qsf::StringHash id) const {
  // The newest wins, so that a modification replaces what the base project offers.
  for (auto info = mOrderInfos.rbegin(); info != mOrderInfos.rend(); ++info)
    if ((*info)->getId() == id) return info->get();
  return nullptr;
}

OrderInfo* OrderInfoManager::getOrderInfoByIdForWriting(qsf::StringHash id) {
  return const_cast<OrderInfo*>(getOrderInfoById(id));
}

}
