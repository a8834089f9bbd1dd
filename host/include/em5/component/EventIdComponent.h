#pragma once
#include "qsf/component/Component.h"

namespace em5 {

class FreeplayEvent;

/// Says which event its entity belongs to; at most one. Properties "EventId" (0 for none) and "Reason": 0 the target of
/// an objective, 1 a part of what happened (a fire, an injury, a thing to rescue or repair), 6 found, 7 a gangster.
class QSF_API EventIdComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::EventIdComponent"};
  explicit EventIdComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Puts the entity into the event. One that is in it already keeps its reason; one of another event leaves that.
  void addToEvent(const FreeplayEvent& event, int reason);
  /// The same, with the reason in any case.
  void setEvent(const FreeplayEvent& event, int reason);
  /// Null without an event, and once it has ended.
  FreeplayEvent* getFreeplayEvent() const;
  std::uint64_t getEventId() const { return mEventId; }
  int getReason() const { return mReason; }

private:
  std::uint64_t mEventId = 0;
  int mReason = 0;
};

}
CAMP_TYPE_NONCOPYABLE(em5::EventIdComponent)
