#pragma once
#include "game_plugin/scenario/messages/HandlerWatch.h"

#include "qsf/gui/GuiDocument.h"

#include <Rocket/Core/EventListener.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Rocket::Core {
class Element;
class ElementDocument;
class Event;
}

namespace script {

class ScenarioHandler;

/// The way of scripts to the documents that the game has already: changes their elements, presses their buttons, and
/// activates triggers when the player does. Made when scripts of a map start, if the game's GUI is there, and destroyed
/// at the game's end. One lives at a time.
class GUIEventListener : public qsf::GuiDocument, public Rocket::Core::EventListener, private HandlerWatch {
public:
  /// The living one, or null: the editor has none.
  static GUIEventListener* get();
  /// Makes one unless one lives. Without the game's GUI it is told and nothing happens.
  static void create();
  /// Lets go of all elements. Null is allowed.
  static void destroy();

  /// A document of the game by its name for scripts, "GUIDOC_Minimap". Null for any other name, and without the game's
  /// GUI.
  static qsf::GuiDocument* findDocument(const std::string& name);
  /// What that document shows. Null also while it shows nothing.
  static Rocket::Core::ElementDocument* findElementDocument(const std::string& name);

  // A document or element that isn't found is told, and nothing happens.

  /// Each click on the element activates the trigger, once for each time that this was called, until the script ends.
  void AddButtonEvent(const std::string& documentName, const std::string& elementId, const std::string& triggerName,
                      ScenarioHandler& handler);
  /// Hands an event of that type straight to the element: nobody above or below it hears of it.
  static void ProcessGUIEvent(const std::string& documentName, const std::string& elementId,
                              const std::string& eventType);
  static void SetAttribute(const std::string& documentName, const std::string& elementId,
                           const std::string& attributeName, const std::string& value);
  static void SetInnerRML(const std::string& documentName, const std::string& elementId, const std::string& text);
  static void SimulateButtonClick(const std::string& documentName, const std::string& elementId);

  /// A click on an element of AddButtonEvent.
  void ProcessEvent(Rocket::Core::Event& event) override;
  void processEvent(const std::string& name, Rocket::Core::Event& event) override;

private:
  struct GuiButtonEvent {
    qsf::GuiDocument* document = nullptr; ///< may have gone since
    std::string elementId;
    std::uint32_t eventNumber = 0;
    ScenarioHandler* handler = nullptr;
    std::string triggerName;
  };

  explicit GUIEventListener(qsf::GuiContext& context);
  ~GUIEventListener() override;
  void forgetHandler(const ScenarioHandler* handler) override;
  void letGoOfElements();

  std::uint32_t mEventCounter = 0;
  std::vector<GuiButtonEvent> mButtonEvents;
};

}
