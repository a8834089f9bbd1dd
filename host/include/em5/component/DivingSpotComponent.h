#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

namespace em5 {

class FreeplayEvent;

/// A place in the water that a diver can search once. Properties "Intact" (there is something to search for; false at
/// first), "FoundEntity" (id of what lies there; uninitialised: the spot itself is what is found), "EventId" (of the
/// event for which it is searched, 0 without one; the spot isn't in that event by this).
class QSF_API DivingSpotComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::DivingSpotComponent"};
  explicit DivingSpotComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isIntact() const { return mIntact; }
  void setIntact(bool intact, FreeplayEvent* event = nullptr);
  std::uint64_t getFoundEntity() const { return mFoundEntity; }
  void setFoundEntity(std::uint64_t entityId) { mFoundEntity = entityId; }

  /// A diver has searched it: what lies there shows itself, the message EM5_ACTION_FIND_ENTITY_FROM_DIVINGSPOT tells of
  /// it, and there is nothing to search for any more. Nothing happens at a spot that isn't intact.
  void search();

private:
  void setIntactByReflection(bool intact) { setIntact(intact); }

  std::uint64_t mFoundEntity = qsf::UNINITIALIZED_ID;
  std::uint64_t mEventId = 0;
  bool mIntact = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::DivingSpotComponent)
