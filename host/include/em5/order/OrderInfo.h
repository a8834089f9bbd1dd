#pragma once
#include "qsf/asset/AssetProxy.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace em5 {

/// A kind of unit that a player can order: prefab, crew, department, icon. Owned by the order info manager.
class QSF_API OrderInfo {
public:
  struct StartPersonnel {
    std::string orderInfo; ///< name of the person's order info
    std::int32_t count;
  };

  explicit OrderInfo(std::string name) : mName(std::move(name)) {}

  const std::string& getName() const { return mName; }
  qsf::StringHash getId() const { return qsf::StringHash(mName); }
  qsf::AssetProxy getPrefab() const { return qsf::AssetProxy(mPrefab); }
  void setPrefab(const std::string& localAssetName) { mPrefab = localAssetName; }
  enum Department { NO_DEPARTMENT = 0, FIRE = 1, AMBULANCE = 2, POLICE = 3, TECH = 4 };
  int getDepartment() const { return mDepartment; }
  void setDepartment(int department) { mDepartment = department; }
  /// A name of MiniMapIconRegistrationLogic; empty for none.
  const std::string& getMiniMapIconType() const { return mMiniMapIconType; }
  void setMiniMapIconType(const std::string& type) { mMiniMapIconType = type; }
  /// Seats.
  int getPersonnelSpace() const { return mPersonnelSpace; }
  void setPersonnelSpace(int space) { mPersonnelSpace = space; }
  bool isTagSet(const std::string& tag) const { return mTags.count(tag) != 0; }
  void setTag(const std::string& tag) { mTags.insert(tag); }
  const std::vector<StartPersonnel>& getStartPersonnelList() const { return mStartPersonnel; }
  std::vector<StartPersonnel>& getStartPersonnelListForWriting() { return mStartPersonnel; }

private:
  std::string mName;
  std::string mPrefab;
  std::string mMiniMapIconType;
  std::set<std::string> mTags;
  std::vector<StartPersonnel> mStartPersonnel;
  int mDepartment = NO_DEPARTMENT;
  int mPersonnelSpace = 0;
};

}
