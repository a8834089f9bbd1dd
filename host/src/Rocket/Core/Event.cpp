#include "Rocket/Core/Event.h"

#include "Rocket/Core/Element.h"

#include <algorithm>

namespace Rocket::Core {

namespace {

std::shared_ptr<Element> share(Element* element) { return element ? element->shared_from_this() : nullptr; }

}

Event::Event(Element* target, const String& type, const Dictionary& parameters, bool interruptible)
    : mTarget(share(target)), mType(type), mParameters(parameters), mInterruptible(interruptible) {}

Event::~Event() = default;

void Event::SetCurrentElement(Element* element) { mCurrent = share(element); }

bool Event::NoteCall(const EventListener* listener) {
  const std::pair<const Element*, const EventListener*> call{mCurrent.get(), listener};
  if (std::find(mCalls.begin(), mCalls.end(), call) != mCalls.end()) return false;
  mCalls.push_back(call);
  return true;
}

}
