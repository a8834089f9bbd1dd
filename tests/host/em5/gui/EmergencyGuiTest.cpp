#include "em5/gui/EmergencyGui.h"

#include "Rocket/Core/Element.h"
#include "em5/gui/HintHelper.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/input/InputSystem.h"

#include <cmath>

namespace {

using EmergencyGuiTest = SessionTest;

std::string calls(const em5::HostSession& session) {
  std::string text;
  for (const auto& call : session.getQsf().getCallRecorder().getCalls()) {
    text += call.operation;
    for (const std::string& argument : call.arguments)
      text += "|" + argument;
    text += "\n";
  }
  return text;
}

TEST_F(EmergencyGuiTest, CursorOperationsLeaveATrace) {
  open().startup();
  em5::EmergencyGui& gui = *qsf::UniqueInstance<em5::EmergencyGui>();
  gui.setMouseCursor("extinguish");
  EXPECT_EQ(gui.getMouseCursor(), "extinguish");
  gui.resetMouseCursor();
  EXPECT_EQ(gui.getMouseCursor(), "");
  gui.showMouseCursor(false);
  EXPECT_FALSE(gui.isMouseCursorVisible());
  EXPECT_EQ(calls(*session), "em5::EmergencyGui::setMouseCursor|extinguish\nem5::EmergencyGui::resetMouseCursor\n"
                             "em5::EmergencyGui::showMouseCursor|0\n");
}

TEST_F(EmergencyGuiTest, TheDebuggingWindowIsHiddenAtFirst) {
  open().startup();
  em5::EmergencyGui& gui = *qsf::UniqueInstance<em5::EmergencyGui>();
  qsf::GuiDocument* window = gui.getIngameHud()->getDebugGuiWindow();
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(gui.getIngameHud()->getMiniMapWindow()->isVisible());
  window->setVisible(true);
  EXPECT_TRUE(window->isVisible());
  window->hide();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(gui.getGuiContext().findDocument("DebugGuiWindow"), window);
}

TEST_F(EmergencyGuiTest, AGameStartsWithTheHudAndWithoutTheMainMenu) {
  open().startup();
  em5::EmergencyGui& gui = *qsf::UniqueInstance<em5::EmergencyGui>();
  em5::IngameHud& hud = *gui.getIngameHud();
  em5::MainMenuManager& menu = *gui.getMainMenuManager();
  hud.getMiniMapWindow()->hide();
  hud.getIngameMainMenuWindow()->show();
  hud.hideGui();
  menu.getBaseLayer()->show();
  gui.getLoadingScreen()->show();
  session->startGame(EMPTY_MAP);
  EXPECT_TRUE(hud.getMiniMapWindow()->isVisible());
  EXPECT_TRUE(hud.getSupervisorWindow()->isVisible());
  EXPECT_FALSE(hud.isHidden());
  EXPECT_FALSE(hud.getIngameMainMenuWindow()->isVisible());
  EXPECT_FALSE(hud.getSEKDroneScanWindow()->isVisible());
  EXPECT_FALSE(menu.getBaseLayer()->isVisible());
  EXPECT_FALSE(gui.getLoadingScreen()->isVisible());
}

TEST_F(EmergencyGuiTest, TheHudIsHiddenAndShownAsItWas) {
  play();
  em5::IngameHud& hud = *qsf::UniqueInstance<em5::EmergencyGui>()->getIngameHud();
  hud.getMenuBar()->hide();
  hud.hideGui();
  hud.hideGui();
  EXPECT_FALSE(hud.getMiniMapWindow()->isVisible());
  hud.showGui();
  EXPECT_TRUE(hud.getMiniMapWindow()->isVisible());
  EXPECT_FALSE(hud.getMenuBar()->isVisible());
  EXPECT_FALSE(hud.getIngameMainMenuWindow()->isVisible());
}

TEST_F(EmergencyGuiTest, TheMainMenuKeepsWhatItHolds) {
  play();
  em5::MainMenuManager& menu = *qsf::UniqueInstance<em5::EmergencyGui>()->getMainMenuManager();
  menu.loadGui();
  menu.getMainMenuWindow()->show();
  menu.getMainMenuWindow()->findElementById("campaign")->SetInnerRML("mine");
  menu.getFreeplayWindow()->unload();
  menu.hideGui();
  EXPECT_FALSE(menu.getMainMenuWindow()->isVisible());
  menu.loadGui();
  EXPECT_EQ(menu.getMainMenuWindow()->findElementById("campaign")->GetText(), "mine");
  EXPECT_NE(menu.getFreeplayWindow()->findElementById("endless"), nullptr); // read anew
}

TEST_F(EmergencyGuiTest, TheCursorIsWhereTheMouseDevicePoints) {
  open().startup();
  qsf::GuiContext& context = qsf::UniqueInstance<em5::EmergencyGui>()->getGuiContext();
  qsf::MouseDevice& mouse = session->getQsf().getInputSystem().getMouse();
  mouse.setPosition({320, 540});
  EXPECT_EQ(context.getNormalizedMouseCursorPosition(), glm::vec2(0.25f, 0.75f));
  context.setNormalizedMouseCursorPosition({0.5f, 0.5f});
  EXPECT_EQ(mouse.getPosition(), glm::vec2(640, 360));
  context.setNormalizedMouseCursorPosition({-1, std::nanf("")});
  EXPECT_EQ(context.getNormalizedMouseCursorPosition(), glm::vec2(0, 0.5f));
}

TEST(GuiContext, ForgetsDocumentsThatAreGone) {
  qsf::GuiContext context;
  {
    qsf::GuiDocument document(context, "a");
    EXPECT_EQ(context.getDocuments(), std::vector<qsf::GuiDocument*>{&document});
  }
  EXPECT_EQ(context.findDocument("a"), nullptr);
}

TEST_F(EmergencyGuiTest, HintsStayUpForTheirTimeAndLeaveATrace) {
  play();
  em5::HintHelper::showHint("Fire!", 4294967295u, qsf::Time());
  em5::HintHelper::showHint("Quick", 3, qsf::Time::fromSeconds(0.5));
  EXPECT_EQ(calls(*session), "em5::HintHelper::showHint|Fire!|4294967295|0\nem5::HintHelper::showHint|Quick|3|0.5\n");
  ASSERT_EQ(em5::HintHelper::getCurrentHints().size(), 2u);
  run(0.5);
  ASSERT_EQ(em5::HintHelper::getCurrentHints().size(), 1u);
  EXPECT_EQ(em5::HintHelper::getCurrentHints().front().text, "Fire!");
  run(9.45);
  EXPECT_EQ(em5::HintHelper::getCurrentHints().size(), 1u);
  run(0.05);
  EXPECT_TRUE(em5::HintHelper::getCurrentHints().empty());
}

TEST_F(EmergencyGuiTest, HintsAreBoundedAndEndWithTheGame) {
  play();
  for (int i = 0; i < 60; ++i)
    em5::HintHelper::showHint(std::to_string(i), 0, qsf::Time());
  ASSERT_EQ(em5::HintHelper::getCurrentHints().size(), 50u);
  EXPECT_EQ(em5::HintHelper::getCurrentHints().front().text, "10");
  session->endGame();
  EXPECT_TRUE(em5::HintHelper::getCurrentHints().empty());
}

}
