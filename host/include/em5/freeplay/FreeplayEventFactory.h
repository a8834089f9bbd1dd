#pragma once
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/freeplay/FreeplayEventTriggerInfo.h"

#include <memory>
#include <string>

namespace em5 {

struct EventDefinition;

/// Makes the events of one definition. Owned by the freeplay system, from the first use of the definition in a game to
/// the game's end. The basic factory makes basic events; derived ones, which a definition names by their class, make
/// events of their own and may refuse.
class QSF_API FreeplayEventFactory : public qsf::Object {
  CAMP_RTTI()
public:
  FreeplayEventFactory();
  ~FreeplayEventFactory() override;
  FreeplayEventFactory(const FreeplayEventFactory&) = delete;
  FreeplayEventFactory& operator=(const FreeplayEventFactory&) = delete;
  static void declareCamp();

  /// Null if it refuses; the reason is then kept. The event isn't started yet.
  virtual std::unique_ptr<FreeplayEvent> tryTriggerEvent(const FreeplayEventTriggerInfo& triggerInfo);
  /// Why it refused last; empty if it never did.
  const std::string& getTriggerFailReason() const { return mTriggerFailReason; }

protected:
  /// Noted in the call recorder.
  void setTriggerFailReason(const std::string& reason);
  /// Gives the event what its definition says of every event: name, times, whether it may be won or lost.
  void initializeEventInstance(FreeplayEvent& event) const;
  /// Sets the event's reflected properties: those of the definition, then of one of its variants, drawn from the game's
  /// random source, then of the trigger. One that the event hasn't is the factory's. Throws std::invalid_argument for
  /// one that neither has and for a value that doesn't convert.
  void deserializeRandomFreeplayVariant(FreeplayEvent& event, const FreeplayEventTriggerInfo& triggerInfo);

private:
  friend class FreeplaySystem;
  void setProperties(FreeplayEvent& event, const EventProperties& properties);

  std::unique_ptr<EventDefinition> mDefinition;
  std::string mTriggerFailReason;
};

}
CAMP_TYPE_NONCOPYABLE(em5::FreeplayEventFactory)
