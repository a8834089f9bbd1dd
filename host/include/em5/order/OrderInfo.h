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
  const std::string& getDepartment() const { return mDepartment; }
  void setDepartment(const std::string& department) { mDepartment = department; }
  const std::string& getMiniMapIconType() const { return mMiniMapIconType; }
  void setMiniMapIconType(const std::string& type) { mMiniMapIconType = type; }
  std::uint32_t getPersonnelSpace() const { return mPersonnelSpace; }
  void setPersonnelSpace(std::uint32_t space) { mPersonnelSpace = space; }
  bool isTagSet(const std::string& tag) const { return mTags.count(tag) != 0; }
  void setTag(const std::string& tag) { mTags.insert(tag); }
  const std::vector<StartPersonnel>& getStartPersonnelList() const { return mStartPersonnel; }
  std::vector<StartPersonnel>& getStartPersonnelListForWriting() { return mStartPersonnel; }

private:
  std::string mName;
  std::string mPrefab;
  std::string mDepartment;
  std::string mMiniMapIconType;
  std::set<std::string> mTags;
  std::vector<StartPersonnel> mStartPersonnel;
  std::uint32_t mPersonnelSpace = 0;
};

}
