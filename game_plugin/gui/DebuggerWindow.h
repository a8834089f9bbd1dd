#pragma once
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "Rocket/Core/EventListener.h"
#include "qsf/gui/GuiDocument.h"
#include "qsf/job/JobProxy.h"

#include <cstdint>
#include <memory>
#include <string>

namespace script {

class EntryTexts;
struct MapScriptEntry;
struct ScriptDocument;

/// The authors' window: scripts, the state of the one that is picked, its variables, and in a second view the players'
/// logs. Two buttons of the ingame main menu show it and reload all scripts. One lives while a game runs; the plug-in's
/// DebuggerStarter and MapScriptManager have it made, both destroy it.
class DebuggerWindow : public qsf::GuiDocument, public Rocket::Core::EventListener {
public:
  static constexpr const char* FILE_NAME = "em5/gui/debug/debug_ms_window.rml";

  explicit DebuggerWindow(qsf::GuiContext& context);
  ~DebuggerWindow() override;

  /// The living one, or null.
  static DebuggerWindow* get();
  /// Makes the one unless it lives, hides it, writes the list of scripts and hears the main menu's buttons. Nothing
  /// without the game's GUI.
  static void startUp();
  static void destroy();

  bool onPreShow() override { return true; }
  void onPostShow() override {}
  void processEvent(const std::string& name, Rocket::Core::Event& event) override;
  /// The buttons of the main menu. A reload destroys this window.
  void ProcessEvent(Rocket::Core::Event& event) override;

  /// Writes the list of scripts that run now.
  void refreshScriptList();

private:
  void listenToMainMenu();
  void readCadence();
  void update();
  void writePickedScript();
  void writePlayerLogs();
  void write(const std::string& elementId, const std::string& rml);
  void setStyle(const std::string& elementId, const std::string& style);
  void pickScript(const std::string& number);
  const MapScriptEntry* findPickedScript() const;
  void selectEntity(const std::string& id);
  void showDebugView();
  void showLoggerView();

  static constexpr std::uint32_t NO_SCRIPT = 0xFFFFFFFF;
  static constexpr const char* NO_TRIGGER = "-1";

  NamedDocument mName{"debugger", *this};
  qsf::JobProxy mJobProxy;
  std::uint32_t mSelectedScript = NO_SCRIPT; ///< its number in the list of scripts
  std::weak_ptr<ScriptDocument> mPicked;     ///< what it was when it was picked: the list may have moved up since
  std::unique_ptr<EntryTexts> mTexts;        ///< of the program that was shown last
  std::string mSelectedTrigger = NO_TRIGGER; ///< the one that is open
  bool mLoggerView = false;
};

}
