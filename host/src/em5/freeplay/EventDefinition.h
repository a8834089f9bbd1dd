#pragma once
#include "em5/freeplay/FreeplayEventTriggerInfo.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/base/JsonFile.h"
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"

namespace em5 {

/// An asset of the type `em5_event` as it was read.
struct EventDefinition {
  std::string asset; ///< local asset name
  std::string name;
  qsf::StringHash factory; ///< class that makes the events; there is one of that name
  std::string supervisorMessage;
  EventProperties properties;
  std::vector<EventProperties> variants;
  qsf::Time succeedsAfter;
  qsf::Time failsAfter;
  bool canWin = true;
  bool canLose = true;
};

/// Throws qsf::LoadError for a faulty file and for a factory that doesn't exist.
EventDefinition readEventDefinition(const qsf::BaseAsset& asset);

/// An object of texts, numbers and bools.
EventProperties asEventProperties(const qsf::JsonPlace& place);

/// `<project>/<type>/<category>/<name>` with that type, in a mounted project; null if there is none.
const qsf::BaseAsset* findAssetOfType(const std::string& localAssetName, const std::string& type);

inline constexpr double LONGEST_EVENT_TIME = 1'000'000; // seconds; a week and a half of play

}
