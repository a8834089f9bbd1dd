#include "em5/map/MapIdentifier.h"

#include "em5/base/JsonMembers.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>

namespace em5 {

MapIdentifier MapIdentifier::fromLocalAssetName(const std::string& localAssetName) {
  MapIdentifier identifier;
  identifier.mLocalAssetName = localAssetName;
  return identifier;
}

std::vector<std::string> MapIdentifier::getSeasonalEvents() const {
  std::vector<std::string> events;
  for (const auto& project : qsf::Qsf::instance()->getProjectManager().getProjects()) {
    const std::string name = project->getName() + "/em5_season/maps/seasonal_events";
    const qsf::BaseAsset* asset = qsf::AssetProxy(name).getAsset();
    if (!asset) continue;
    try {
      const qsf::Json json = qsf::readJsonFile(asset->getFile());
      const qsf::JsonPlace root(json, asset->getFile());
      root.expectObject();
      if (!root.has(mLocalAssetName)) continue;
      for (std::string& event : asTexts(root.member(mLocalAssetName)))
        if (std::find(events.begin(), events.end(), event) == events.end()) events.push_back(std::move(event));
    } catch (const std::exception& exception) {
      qsf::logMessage(qsf::LogSystem::ERROR, exception.what());
    }
  }
  return events;
}

}
