#include "game_plugin/gui/CommandLine.h"

#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Selection.h"

#include "Rocket/Core.h"
#include "qsf/base/Ids.h"

namespace script {

namespace {

constexpr std::size_t SLOT_WIDTH = 77; // pixels

CommandLine* theCommandLine = nullptr;

/// The id of the one selected entity; uninitialised with none or several.
std::uint64_t singleSelectedId(const em5::SelectionManager& selection) {
  return selection.getSelectionSize() == 1 ? *selection.getSelectedIdSet().begin() : qsf::UNINITIALIZED_ID;
}

const ScenarioCommandableComponent* findComponent(std::uint64_t entityId) {
  const qsf::Entity* entity = findEntity(entityId);
  return entity ? entity->getComponent<ScenarioCommandableComponent>() : nullptr;
}

std::string iconOf(const std::string& command) { return "../asset/icons_actionbar/" + command + ".dds"; }

}

CommandLine::CommandLine(qsf::GuiContext& context) : GuiDocument(context), mLastSelectedId(qsf::UNINITIALIZED_ID) {
  if (!loadByFilename(FILE_NAME)) logInfo(std::string("CommandLine::CommandLine: cant load ") + FILE_NAME);
}

CommandLine::~CommandLine() {
  if (theCommandLine == this) theCommandLine = nullptr;
}

CommandLine* CommandLine::get() { return theCommandLine; }

void CommandLine::create(qsf::GuiContext& context) {
  if (theCommandLine) return;
  theCommandLine = new CommandLine(context);
  logInfo("new CommandLine is " + std::to_string(theCommandLine->getAddress()) + "with the size of " +
          std::to_string(NUMBER_OF_BUTTONS));
}

void CommandLine::destroy() { delete std::exchange(theCommandLine, nullptr); }

void CommandLine::resetSelection() { mLastSelectedId = qsf::UNINITIALIZED_ID; }

void CommandLine::handleSelection() {
  const em5::SelectionManager* selection = findGameSelection();
  if (!selection) return;
  const std::uint64_t id = singleSelectedId(*selection);
  const ScenarioCommandableComponent* component = findComponent(id);
  if (!component) {
    setVisible(false);
  } else if (!component->getActionBarCommands().empty() && id != mLastSelectedId) {
    // Kept: an entity whose list is empty leaves the bar as it was for the one before.
    mPressedCommand.clear();
    setVisible(true);
    UpdateButtons(*component);
  }
  mLastSelectedId = id;
}

void CommandLine::UpdateButtons(const ScenarioCommandableComponent& component) {
  logInfo("Update Buttons");
  mPressedCommand.clear();
  Rocket::Core::Element* bar = findElementById("cmdButtons");
  if (!bar) return;
  const std::vector<std::string>& commands = component.getActionBarCommands();
  // Kept: the width counts commands beyond the last button, too.
  bar->SetAttribute("style", "width: " + std::to_string(commands.size() * SLOT_WIDTH) + "px;");
  for (std::size_t i = 0; i < NUMBER_OF_BUTTONS; ++i) {
    Rocket::Core::Element* button = findElementById(std::to_string(i + 1));
    if (!button) continue;
    const bool used = i < commands.size();
    button->SetAttribute("style", used ? "display:inline;" : "display:none;");
    if (used) button->SetAttribute("src", iconOf(commands[i]));
  }
}

void CommandLine::processEvent(const std::string& name, Rocket::Core::Event& event) {
  if (name == "EnableDisable")
    toggle();
  else if (event.GetType() == "click" && event.GetTargetElement())
    press(event.GetTargetElement()->GetId());
}

void CommandLine::toggle() {
  Rocket::Core::Element* bar = findElementById("cmdButtons");
  if (!bar) {
    logInfo("cmdButtons was not found");
    return;
  }
  bar->SetAttribute("style", mExpanded ? "display:none;" : "display:inline-block;");
  mExpanded = !mExpanded;
}

void CommandLine::press(const std::string& buttonId) {
  if (buttonId.size() != 1 || buttonId[0] < '1' || buttonId[0] > '8') return;
  const em5::SelectionManager* selection = findGameSelection();
  const ScenarioCommandableComponent* component = selection ? findComponent(singleSelectedId(*selection)) : nullptr;
  const std::size_t index = static_cast<std::size_t>(buttonId[0] - '1');
  // A click on what was the bar of another entity a moment ago may ask for more than this one has.
  if (!component || index >= component->getActionBarCommands().size()) return;
  mPressedCommand = component->getActionBarCommands()[index];
  logInfo(mPressedCommand);
}

bool CommandLine::takeClick(const std::string& commandName) {
  const em5::SelectionManager* selection = findGameSelection();
  if (!selection || selection->getSelectionSize() != 1) return false;
  if (mPressedCommand.empty() || mPressedCommand != commandName) return false;
  mPressedCommand.clear();
  return true;
}

}
