#pragma once
#include "qsf/component/Component.h"

#include <cstdint>
#include <vector>

namespace script {

/// Lists the entities whose MultiplayerSynchronizationHelperComponents are kept alike on all machines of a session.
class MultiplayerSynchronizationMasterComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::MultiplayerSynchronizationMasterComponent"};
  explicit MultiplayerSynchronizationMasterComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::uint64_t>& getSlaves() const { return mSlaves; }

private:
  std::vector<std::uint64_t> mSlaves;
};

}
CAMP_TYPE_NONCOPYABLE(script::MultiplayerSynchronizationMasterComponent)
