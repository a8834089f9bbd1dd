#pragma once
#include "Rocket/Core/Dictionary.h"

#include <memory>

namespace Rocket::Core {

class Element;
class EventListener;

/// Something that happens to an element. It keeps its elements alive, also if a listener takes them off their document.
class QSF_API Event {
public:
  enum EventPhase { PHASE_UNKNOWN, PHASE_CAPTURE, PHASE_TARGET, PHASE_BUBBLE };

  /// An interruptible event can be stopped by those that hear it.
  Event(Element* target, const String& type, const Dictionary& parameters, bool interruptible = false);
  ~Event();
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  EventPhase GetPhase() const { return mPhase; }
  void SetPhase(EventPhase phase) { mPhase = phase; }
  /// Where the event is on its way; null before it has started.
  Element* GetCurrentElement() const { return mCurrent.get(); }
  void SetCurrentElement(Element* element);
  /// Null only if it was made without one.
  Element* GetTargetElement() const { return mTarget.get(); }

  /// "click", "mouseover", ...
  const String& GetType() const { return mType; }
  bool operator==(const String& type) const { return mType == type; }

  const Dictionary& GetParameters() const { return mParameters; }
  template <class T> T GetParameter(const String& key, const T& defaultValue) const {
    return mParameters.Get(key, defaultValue);
  }

  bool IsInterruptible() const { return mInterruptible; }
  bool IsPropagating() const { return !mStopped; }
  /// Nothing happens if the event isn't interruptible.
  void StopPropagation() { mStopped = mStopped || mInterruptible; }

private:
  friend class Element;
  /// False if that listener has heard this event at the current element before.
  bool NoteCall(const EventListener* listener);

  std::shared_ptr<Element> mTarget;
  std::shared_ptr<Element> mCurrent;
  String mType;
  Dictionary mParameters;
  EventPhase mPhase = PHASE_UNKNOWN;
  bool mInterruptible;
  bool mStopped = false;
  std::vector<std::pair<const Element*, const EventListener*>> mCalls;
};

}
