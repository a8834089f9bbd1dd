#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/base/UniqueInstance.h"

#include <map>
#include <memory>
#include <string>

namespace Ogre {
class LogManager;
class Root;
class Skeleton;
}

namespace qsf {

/// The skeletons of assets, on OGRE without a picture. OGRE is started when the first skeleton is asked for and ends
/// with the host; it writes no log of its own. Owned by Qsf.
class SkeletonManager : public UniqueInstanceTarget<SkeletonManager> {
public:
  SkeletonManager();
  ~SkeletonManager();

  /// In its rest pose; read at the first use. Null, with one line in the log, if the asset is missing or can't be read.
  std::shared_ptr<Ogre::Skeleton> findSkeleton(const AssetProxy& asset);

private:
  std::shared_ptr<Ogre::Skeleton> read(const std::string& name, const std::string& file);
  void startOgre();

  std::unique_ptr<Ogre::LogManager> mOgreLog;
  std::unique_ptr<Ogre::Root> mOgre;
  std::map<std::string, std::shared_ptr<Ogre::Skeleton>> mSkeletons; // by file; null for one that can't be read
};

}
