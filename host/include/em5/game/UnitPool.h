#pragma once
#include "qsf/Export.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace em5 {

class OrderInfo;

/// How many units of each kind a player may have, and which it has. Owned by its player. A kind that isn't in the pool
/// has a maximum of 0.
class QSF_API UnitPool {
public:
  int getNumberMaxAvailable(const OrderInfo& orderInfo) const;
  /// Units on the map that are registered for the kind; those that are gone don't count.
  int getNumberInMap(const OrderInfo& orderInfo) const;
  /// How many may still be ordered, at least 0.
  int getNumberAvailable(const OrderInfo& orderInfo) const;
  /// Raises the maximum, or lowers it by a negative number, to 0 at least. Noted in the call recorder.
  void increaseNumberAvailable(const std::string& orderName, int number);

  void registerUnitInMap(const OrderInfo& orderInfo, std::uint64_t entityId);
  /// An id that isn't registered for that kind does nothing.
  void unregisterUnitInMap(const OrderInfo& orderInfo, std::uint64_t entityId);

  /// Takes the maxima from a pool's asset, `<project>/unit_pool/<category>/<name>`, of the project mounted last that
  /// has it; registered units stay. False, and nothing changes, if there is none of that name. A faulty file throws
  /// qsf::LoadError.
  bool load(const std::string& name);

private:
  std::map<std::string, int> mMaxima;
  std::map<std::string, std::set<std::uint64_t>> mUnits;
};

}
