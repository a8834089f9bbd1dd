#pragma once
#include "em5/order/OrderInfo.h"

#include <memory>
#include <vector>

namespace em5 {

/// The order infos of all mounted projects, read from their assets of type `order_info` when a game starts, so that
/// what a script changed ends with the game. Owned by the game.
class QSF_API OrderInfoManager {
public:
  /// Reads all order infos. A faulty file throws qsf::LoadError and leaves the manager empty.
  void load();
  /// Null if there is none of that name. The id is the hash of the name.
  const OrderInfo* getOrderInfoById(qsf::StringHash id) const;
  OrderInfo* getOrderInfoByIdForWriting(qsf::StringHash id);
  /// In the order of the projects and their assets.
  const std::vector<std::unique_ptr<OrderInfo>>& getOrderInfos() const { return mOrderInfos; }

private:
  std::vector<std::unique_ptr<OrderInfo>> mOrderInfos;
};

}
