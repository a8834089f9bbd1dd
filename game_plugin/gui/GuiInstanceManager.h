#pragma once
#include "game_plugin/gui/GuiInstance.h"
#include "game_plugin/scenario/messages/HandlerWatch.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

#include <memory>
#include <string>
#include <vector>

namespace script {

class AudioTrackerGUI;
class ScenarioHandler;

/// Owns the documents that scripts have loaded, what their buttons do, and the audio tracker. Made with
/// MapScriptManager, in the editor too, and again when scripts of a map start; goes with a game's end, and everything
/// that it owns with it. One lives at a time.
class GuiInstanceManager : public GuiDocuments, private HandlerWatch {
public:
  /// The living one, or null.
  static GuiInstanceManager* get();
  /// Makes one unless one lives.
  static void create();
  /// Null is allowed.
  static void destroy();

  /// A new document of that file; ids may be used more than once. Without the game's GUI it is told and nothing
  /// happens.
  void LoadRMLFile(const std::string& rmlFile, const std::string& uniqueId);
  /// A click on that button of a document of that id, be it loaded already or not, activates the trigger. The
  /// connection goes with the handler.
  void ConnectButtonToTrigger(const std::string& buttonId, const std::string& triggerId, ScenarioHandler& handler,
                              const std::string& uniqueId);
  /// What a click does: activates all triggers that are connected, in the order of connecting. False if there is none.
  bool activateTriggers(const std::string& uniqueId, const std::string& buttonId);

  /// In the order of their loading.
  const std::vector<std::unique_ptr<GuiInstance>>& getInstances() const { return mInstances; }
  /// Of the first document of that id; false if there is none.
  bool isVisible(const std::string& uniqueId) const override;

  std::vector<qsf::GuiDocument*> find(const std::string& uniqueId) const override;

  /// Makes the audio tracker, or destroys it. Nothing happens if it is so already, or without the game's GUI.
  void switchTracker(bool wanted);

  /// Documents more than this at a time are refused with an error: a trigger that loads one each tick has no end.
  static constexpr std::size_t MAXIMUM_DOCUMENTS = 1000;

private:
  struct ButtonConnection {
    std::string buttonId;
    std::string triggerId;
    std::string uniqueId;
    ScenarioHandler* handler;
  };

  GuiInstanceManager();
  virtual ~GuiInstanceManager();
  void forgetHandler(const ScenarioHandler* handler) override;

  std::vector<ButtonConnection> mConnections;
  std::vector<std::unique_ptr<GuiInstance>> mInstances;
  std::unique_ptr<AudioTrackerGUI> mTracker;
};

}
