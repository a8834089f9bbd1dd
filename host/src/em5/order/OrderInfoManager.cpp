#include "em5/order/OrderInfoManager.h"

#include "em5/base/JsonFile.h"
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

void readStartPersonnel(const JsonFile& file, OrderInfo& info) {
  const auto found = file.getRoot().find("startPersonnel");
  if (found == file.getRoot().end()) return;
  if (!found->is_array()) file.fail("/startPersonnel", "an array is expected here");
  std::size_t index = 0;
  for (const auto& element : *found) {
    const std::string place = "/startPersonnel/" + std::to_string(index++);
    if (!element.is_object()) file.fail(place, "an object with orderInfo and count is expected here");
    file.refuseUnknownKeys(element, place, {"orderInfo", "count"});
    const std::string name = file.readString(element, place, "orderInfo", "");
    if (name.empty()) file.fail(place + "/orderInfo", "the name of the person's order info is missing");
    const double count = file.readNumber(element, place, "count", 0, 1000, 1);
    info.getStartPersonnelListForWriting().push_back({name, static_cast<std::int32_t>(count)});
  }
}

std::unique_ptr<OrderInfo> readOrderInfo(const std::string& path) {
  const JsonFile file(path);
  const auto& root = file.getRoot();
  file.refuseUnknownKeys(root, "/",
                         {"name", "prefab", "department", "miniMapIcon", "personnelSpace", "tags", "startPersonnel"});
  const std::string name = file.readString(root, "/", "name", "");
  if (name.empty()) file.fail("/name", "the order info's name is missing");
  auto info = std::make_unique<OrderInfo>(name);
  info->setPrefab(file.readString(root, "/", "prefab", ""));
  info->setDepartment(file.readString(root, "/", "department", ""));
  info->setMiniMapIconType(file.readString(root, "/", "miniMapIcon", ""));
  info->setPersonnelSpace(static_cast<std::uint32_t>(file.readNumber(root, "/", "personnelSpace", 0, 1000, 0)));
  if (const auto tags = root.find("tags"); tags != root.end())
    for (const std::string& tag : file.readStrings(*tags, "/tags"))
      info->setTag(tag);
  readStartPersonnel(file, *info);
  return info;
}

}

void OrderInfoManager::load() {
  std::vector<std::unique_ptr<OrderInfo>> infos;
  for (const auto& project : qsf::Qsf::instance()->getProjectManager().getProjects())
    for (const auto& asset : project->getAssets())
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
