// What elements do with events and listeners. Anything may be destroyed by those who hear an event: elements on its way
// are held, listeners leave their elements when they go.
#include "Rocket/Core/ElementDocument.h"

#include "Limits.h"
#include "Reports.h"

#include <algorithm>

namespace Rocket::Core {

namespace {

int theEventDepth = 0;

class EventDepth {
public:
  EventDepth() { ++theEventDepth; }
  ~EventDepth() { --theEventDepth; }
  EventDepth(const EventDepth&) = delete;
  EventDepth& operator=(const EventDepth&) = delete;
  static bool isExceeded() { return theEventDepth > MAXIMUM_EVENT_DEPTH; }
};

}

EventListener::~EventListener() {
  for (const std::weak_ptr<Element>& attached : mElements)
    if (const std::shared_ptr<Element> element = attached.lock())
      std::erase_if(element->mListeners, [this](const auto& entry) { return entry.listener == this; });
}

void EventListener::OnAttach(Element* /*element*/) {}

void EventListener::OnDetach(Element* /*element*/) {}

bool Element::IsAttached(const AttachedListener& attached) const {
  return std::any_of(mListeners.begin(), mListeners.end(), [&](const AttachedListener& entry) {
    return entry.listener == attached.listener && entry.inCapturePhase == attached.inCapturePhase &&
           entry.event == attached.event;
  });
}

void Element::AddEventListener(const String& event, EventListener* listener, bool inCapturePhase) {
  AttachedListener attached{event, listener, inCapturePhase};
  if (!listener || IsAttached(attached)) return;
  mListeners.push_back(std::move(attached));
  std::erase_if(listener->mElements, [](const auto& element) { return element.expired(); });
  listener->mElements.push_back(weak_from_this());
  listener->OnAttach(this);
}

void Element::RemoveEventListener(const String& event, EventListener* listener, bool inCapturePhase) {
  const auto found = std::find_if(mListeners.begin(), mListeners.end(), [&](const AttachedListener& entry) {
    return entry.listener == listener && entry.inCapturePhase == inCapturePhase && entry.event == event;
  });
  if (found == mListeners.end()) return;
  mListeners.erase(found);
  auto& elements = listener->mElements;
  const auto own = std::find_if(elements.begin(), elements.end(),
                                [this](const auto& element) { return element.lock().get() == this; });
  if (own != elements.end()) elements.erase(own);
  listener->OnDetach(this);
}

void Element::CallListeners(Event& event) {
  const bool isTarget = event.GetPhase() == Event::PHASE_TARGET;
  const bool isCapture = event.GetPhase() == Event::PHASE_CAPTURE;
  const std::vector<AttachedListener> listeners = mListeners;
  for (const AttachedListener& attached : listeners) {
    if (!event.IsPropagating()) return;
    if (attached.event != event.GetType() || (!isTarget && attached.inCapturePhase != isCapture)) continue;
    if (!IsAttached(attached) || !event.NoteCall(attached.listener)) continue;
    callGuarded([&] { attached.listener->ProcessEvent(event); },
                "a listener of \"" + event.GetType() + "\" at \"" + GetId() + "\"");
  }
}

/// The event comes by on its way.
void Element::Meet(Event& event) {
  event.SetCurrentElement(this);
  CallListeners(event);
  if (event.GetPhase() != Event::PHASE_CAPTURE && event.IsPropagating()) ProcessEvent(event);
}

bool Element::DispatchEvent(const String& type, const Dictionary& parameters, bool interruptible) {
  const EventDepth depth;
  if (EventDepth::isExceeded()) {
    warn("The event \"" + type + "\" at \"" + GetId() + "\" ends here: too many events cause each other");
    return true;
  }
  Event event(this, type, parameters, interruptible);
  std::vector<std::shared_ptr<Element>> parents;
  for (Element* parent = mParent; parent; parent = parent->mParent)
    parents.push_back(parent->shared_from_this());

  event.SetPhase(Event::PHASE_CAPTURE);
  for (auto parent = parents.rbegin(); parent != parents.rend() && event.IsPropagating(); ++parent)
    (*parent)->Meet(event);
  event.SetPhase(Event::PHASE_TARGET);
  if (event.IsPropagating()) Meet(event);
  event.SetPhase(Event::PHASE_BUBBLE);
  for (auto parent = parents.begin(); parent != parents.end() && event.IsPropagating(); ++parent)
    (*parent)->Meet(event);
  return event.IsPropagating();
}

void Element::Click() {
  Dictionary parameters;
  parameters.Set("button", 0);
  DispatchEvent("click", parameters, true);
}

void Element::ProcessEvent(Event& event) {
  const String& type = event.GetType();
  if (type == "mouseover" || type == "mouseout") SetPseudoClass("hover", type == "mouseover");
  if (type == "focus" || type == "blur") SetPseudoClass("focus", type == "focus");
  const String name = GetAttribute("on" + type);
  if (name.empty()) return;
  if (ElementDocument* document = GetOwnerDocument()) document->HandEvent(name, event);
}

}
