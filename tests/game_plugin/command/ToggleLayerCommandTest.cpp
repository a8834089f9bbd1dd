// What the game's GUI asks of the command, and what no script can bring about.
#include "game_plugin/command/ToggleLayerCommand.h"
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/component/OpenHouseComponent.h"

#include "em5/command/CommandHelper.h"

using namespace script;

namespace {

class ToggleLayerCommandTest : public ModuleTest {
protected:
  ToggleLayerCommandTest() { start(); }
  static em5::Command& command() { return *em5::CommandHelper::findCommand(ToggleLayerCommand::COMMAND_ID); }
};

TEST_F(ToggleLayerCommandTest, HasAButtonWithATextAndATooltip) {
  EXPECT_EQ(command().getPriority(), 2);
  EXPECT_TRUE(command().getIconSettings().mShowButton);
  EXPECT_EQ(command().getIconSettings().mButtonText, "ToggleLayerCommand");
  EXPECT_EQ(command().getIconSettings().mTooltipId, "ID_ToggleLayerCommand");
  EXPECT_EQ(command().getName(), "script::ToggleLayerCommand");
  EXPECT_EQ(command().getCampClass().tag("Description").to<std::string>(),
            "A command which can be used together with OpenHouses");
}

TEST_F(ToggleLayerCommandTest, WithoutACallerOrAHouseNothingHappens) {
  em5::CommandContext context;
  EXPECT_FALSE(command().checkContext(context));
  command().execute(context);
  context.mCaller = qsf::getMainMap().createEntity(100);
  EXPECT_FALSE(command().checkContext(context));
  command().execute(context);
  context.mCaller->getOrCreateComponent<OpenHouseComponent>();
  EXPECT_TRUE(command().checkAvailable());
  EXPECT_TRUE(command().checkCaller(*context.mCaller));
  EXPECT_TRUE(command().checkContext(context));
}

}
