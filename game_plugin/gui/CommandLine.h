#pragma once
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "qsf/gui/GuiDocument.h"

#include <cstdint>
#include <string>
#include <vector>

namespace script {

class ScenarioCommandableComponent;

/// The bar of up to eight buttons that comes up for a single selected entity whose ScenarioCommandableComponent lists
/// commands. A click keeps the command's name until a condition asks for it. One lives while scripts of a map run, in a
/// game with a GUI; MapScriptManager has it made and destroyed, and tells it of the selection.
class CommandLine : public qsf::GuiDocument {
public:
  static constexpr const char* FILE_NAME = "em5/gui/ingamehud/cmd_gui.rml";
  static constexpr std::size_t NUMBER_OF_BUTTONS = 8;

  explicit CommandLine(qsf::GuiContext& context);
  ~CommandLine() override;

  /// The living one, or null.
  static CommandLine* get();
  /// Makes the one, unless it lives.
  static void create(qsf::GuiContext& context);
  static void destroy();

  /// Shows, fills or hides the bar as the game's selection demands; called in each frame.
  void handleSelection();
  /// Forgets which entity was handled last, so that the bar is built anew for the next.
  void resetSelection();
  void UpdateButtons(const ScenarioCommandableComponent& component);
  /// Whether a button of that command was clicked while just one entity is selected; the click is used up then.
  bool takeClick(const std::string& commandName);

  void processEvent(const std::string& name, Rocket::Core::Event& event) override;

private:
  void toggle();
  void press(const std::string& buttonId);

  NamedDocument mName{"actionbar", *this};
  std::string mPressedCommand; ///< empty: nothing waits
  bool mExpanded = true;
  std::uint64_t mLastSelectedId;
};

}
