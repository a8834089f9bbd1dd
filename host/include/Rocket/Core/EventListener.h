#pragma once
#include "qsf/Export.h"

#include <memory>
#include <vector>

namespace Rocket::Core {

class Element;
class Event;

/// Hears events of the elements to which it is attached. Whoever makes it owns it; it leaves its elements when it is
/// destroyed, also while an event is on its way to it.
class QSF_API EventListener {
public:
  EventListener() = default;
  virtual ~EventListener();
  EventListener(const EventListener&) = delete;
  EventListener& operator=(const EventListener&) = delete;

  /// What it throws is logged and costs this call only.
  virtual void ProcessEvent(Event& event) = 0;
  /// Behind each attaching and detaching, except by its own end.
  virtual void OnAttach(Element* element);
  virtual void OnDetach(Element* element);

private:
  friend class Element;
  std::vector<std::weak_ptr<Element>> mElements; ///< one for each attaching
};

}
