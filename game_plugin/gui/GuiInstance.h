#pragma once
#include "qsf/gui/GuiDocument.h"

#include <Rocket/Core/EventListener.h>

#include <string>

namespace Rocket::Core {
class Element;
class Event;
}

namespace script {

/// A document that a script has loaded, under an id that the script chose; several may have one id. Its buttons
/// activate the triggers that GuiInstanceManager, its owner, knows for them.
class GuiInstance : public qsf::GuiDocument, public Rocket::Core::EventListener {
public:
  /// Loads the file and is visible from then on. A file that can't be loaded is told of and leaves an empty document.
  GuiInstance(qsf::GuiContext& context, const std::string& rmlFile);

  const std::string& getUniqueId() const { return mUniqueId; }
  void setUniqueId(const std::string& uniqueId) { mUniqueId = uniqueId; }

  /// Null if the document has no such element.
  Rocket::Core::Element* findElement(const std::string& elementId) const;
  /// Kept: looks whether the element is visible and leaves it as it is. Scripts show elements by their style.
  static void showElement(Rocket::Core::Element& element, bool show);

  /// An event of an element that somebody has this document listen to; only told of.
  void ProcessEvent(Rocket::Core::Event& event) override;
  /// An event that the RML file hands on by a name: "onClose" hides the document, whatever else may be a button.
  void processEvent(const std::string& name, Rocket::Core::Event& event) override;

private:
  std::string mUniqueId = "-1";
};

}
