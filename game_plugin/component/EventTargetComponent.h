#pragma once
#include "qsf/component/Component.h"

#include <string>
#include <vector>

namespace script {

/// The objectives that wait for its entity, by their text ids, in the order in which they came, none twice.
class EventTargetComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::EventTargetComponent"};
  explicit EventTargetComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Nothing happens if it is there.
  void add(const std::string& objectiveId);
  bool has(const std::string& objectiveId) const;
  /// Nothing happens if it isn't there.
  void remove(const std::string& objectiveId);
  const std::vector<std::string>& getObjectiveIds() const { return mObjectiveIds; }

private:
  std::vector<std::string> mObjectiveIds;
};

}
CAMP_TYPE_NONCOPYABLE(script::EventTargetComponent)
