#pragma once
#include "Rocket/Core.h"
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/gui/GuiInstanceManager.h"

#include "em5/gui/EmergencyGui.h"

#include <functional>

/// A game with scripts that show documents.
class GuiTest : public ModuleTest {
protected:
  /// Does something when an event comes by.
  class OnEvent : public Rocket::Core::EventListener {
  public:
    explicit OnEvent(std::function<void()> call) : mCall(std::move(call)) {}
    void ProcessEvent(Rocket::Core::Event& /*event*/) override {
      if (mCall) std::exchange(mCall, nullptr)();
    }

  private:
    std::function<void()> mCall;
  };

  /// The file of a document with buttons.
  std::string writeDocument() {
    write("gui", "a.rml",
          "<rml><body id=\"body\" onkeydown=\"key\" onhide=\"hides\" onshow=\"shows\">"
          "<div id=\"frame\" onclick=\"frame\"><button id=\"go\" onclick=\"pressed\">Go</button></div>"
          "<button id=\"close\" onclick=\"onClose\">Close</button></body></rml>");
    return folder() + "/gui/a.rml";
  }
  static script::GuiInstanceManager& instances() { return *script::GuiInstanceManager::get(); }
  script::GuiInstance& load(const std::string& uniqueId) {
    instances().LoadRMLFile(writeDocument(), uniqueId);
    return *instances().getInstances().back();
  }
  static em5::EmergencyGui& gui() { return *qsf::UniqueInstance<em5::EmergencyGui>(); }
  using ModuleTest::load;
};
