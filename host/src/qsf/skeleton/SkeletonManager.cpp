#include "qsf/skeleton/SkeletonManager.h"

#include "qsf/base/LoadError.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/PropertyText.h"
#include "qsf/skeleton/SkeletonFile.h"

#include <OgreLogManager.h>
#include <OgreRoot.h>
#include <OgreSkeleton.h>

namespace qsf {

namespace {

/// A skeleton that no OGRE manager loads and unloads: it frees its bones itself.
class OwnedSkeleton : public Ogre::Skeleton {
public:
  explicit OwnedSkeleton(const std::string& name) : Skeleton(nullptr, name, 0, "", true) {}
  ~OwnedSkeleton() override { unloadImpl(); }
};

}

SkeletonManager::SkeletonManager() = default;

SkeletonManager::~SkeletonManager() {
  mSkeletons.clear();
  mOgre.reset();
}

void SkeletonManager::startOgre() {
  if (mOgre) return;
  mOgreLog = std::make_unique<Ogre::LogManager>();
  mOgreLog->createLog("", true, false, true); // the default log, neither on a screen nor in a file
  mOgre = std::make_unique<Ogre::Root>("", "", "");
}

std::shared_ptr<Ogre::Skeleton> SkeletonManager::findSkeleton(const AssetProxy& asset) {
  const BaseAsset* found = asset.getAsset();
  const std::string name = found ? found->getName() : toText(asset.getLocalAssetId());
  const auto [known, isNew] = mSkeletons.try_emplace(found ? found->getFile() : name);
  if (isNew && found)
    known->second = read(name, found->getFile());
  else if (isNew)
    logMessage(LogSystem::WARNING, "No mounted project has a skeleton \"" + name + "\"");
  return known->second;
}

std::shared_ptr<Ogre::Skeleton> SkeletonManager::read(const std::string& name, const std::string& file) {
  try {
    startOgre();
    auto skeleton = std::make_shared<OwnedSkeleton>(name);
    readSkeletonFile(file, *skeleton);
    return skeleton;
  } catch (const Ogre::Exception& fault) {
    logMessage(LogSystem::WARNING, file + ": " + fault.getDescription() + "; there are no bones");
  } catch (const std::exception& fault) {
    logMessage(LogSystem::WARNING, std::string(fault.what()) + "; there are no bones");
  }
  return nullptr;
}

}
