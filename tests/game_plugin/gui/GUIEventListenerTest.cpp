#include "game_plugin/gui/GuiFixture.h"
#include "game_plugin/scenario/ScriptFixture.h"

using namespace script;

namespace {

using GUIEventListenerTest = GuiTest;

constexpr const char* NO_GUI = "Cant loadG GUIEventListener because the EM5-GUI Instance is a nullptr";

TEST_F(GUIEventListenerTest, NeedsTheGui) {
  load(em5::HostSession::Kind::EDITOR);
  EXPECT_EQ(count(2, NO_GUI), 0) << "in the editor nobody tries";
  GUIEventListener::create();
  EXPECT_EQ(GUIEventListener::get(), nullptr);
  EXPECT_EQ(count(2, NO_GUI), 1);
  EXPECT_EQ(GUIEventListener::findDocument("GUIDOC_Minimap"), nullptr);
  EXPECT_EQ(GUIEventListener::findElementDocument("GUIDOC_Minimap"), nullptr);
}

TEST_F(GUIEventListenerTest, LivesFromTheLoadToTheGamesEndAndComesAgain) {
  load();
  const GUIEventListener* first = GUIEventListener::get();
  ASSERT_NE(first, nullptr) << "scripts of the program's start may use it";
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(GUIEventListener::get(), first);
  session->endGame();
  EXPECT_EQ(GUIEventListener::get(), nullptr);
  session->startGame(EMPTY_MAP);
  EXPECT_NE(GUIEventListener::get(), nullptr);
  EXPECT_EQ(count(2, NO_GUI), 0);
}

TEST_F(GUIEventListenerTest, KnowsTheGamesDocumentsByName) {
  start();
  const em5::IngameHud& hud = *gui().getIngameHud();
  const em5::MainMenuManager& menu = *gui().getMainMenuManager();
  const std::pair<const char*, qsf::GuiDocument*> documents[] = {
      {"GUIDOC_MainMenuWindow", menu.getMainMenuWindow()},
      {"GUIDOC_SelectionWindowCommandable", hud.getSelectionWindowCommandable()},
      {"GUIDOC_SelectionWindowVehicle", hud.getSelectionWindowVehicle()},
      {"GUIDOC_SelectionWindowMulti", hud.getSelectionWindowVehicle()},
      {"GUIDOC_Minimap", hud.getMiniMapWindow()},
      {"GUIDOC_CommandWindow", hud.getCommandWindow()},
      {"GUIDOC_MenuBar", hud.getMenuBar()},
      {"GUIDOC_ObjectiveWindow", hud.getObjectiveWindow()},
      {"GUIDOC_SupervisorWindow", hud.getSupervisorWindow()},
      {"GUIDOC_UnitOverviewWindow", hud.getUnitOverviewWindow()},
      {"GUIDOC_VehicleOrderBar", hud.getVehicleOrderBar()},
      {"GUIDOC_VehicleOrderWindow", hud.getVehicleOrderWindow()},
      {"GUIDOC_VehicleSelectionWindow", hud.getVehicleSelectionWindow()},
      {"GUIDOC_WarblerFeedWindow", hud.getWarblerFeedWindow()},
      {"GUIDOC_MainMenu_VideoPlayerWindow", menu.getVideoPlayerWindow()},
      {"GUIDOC_FullscreenVideoWindow", hud.getFullscreenVideoWindow()},
      {"GUIDOC_MainMenu_SelectCampaign", menu.getSelectCampaignWindow()},
      {"GUIDOC_MainMenu_FreeplayWindow", menu.getFreeplayWindow()},
      {"GUIDOC_MainMenu_BaseLayer", menu.getBaseLayer()},
      {"GUIDOC_MainMenu_AccountStatusTitle", menu.getAccountStatusTitleWindow()},
      {"GUIDOC_MainMenu_AccountInfo", menu.getAccountStatusWindow()},
      {"GUIDOC_LoadingScreen", gui().getLoadingScreen()},
      {"GUIDOC_STARTGAME", menu.getStartGameWindow()},
  };
  for (const auto& [name, document] : documents)
    EXPECT_EQ(GUIEventListener::findDocument(name), document) << name;
  for (const char* name : {"", "GUIDOC_", "GUIDOC_minimap", "GUIDOC_Minimap ", "Minimap"})
    EXPECT_EQ(GUIEventListener::findDocument(name), nullptr) << name;
}

TEST_F(GUIEventListenerTest, ItsOwnHandlingOnlyTells) {
  start();
  Rocket::Core::Element* element = gui().getIngameHud()->getMiniMapWindow()->findElementById("test_button");
  Rocket::Core::Event event(element, "click", {});
  GUIEventListener::get()->processEvent("onClose", event);
  EXPECT_EQ(count(2, "hahaclick"), 1);
}

TEST_F(GUIEventListenerTest, LetsGoOfElementsWhoseDocumentWasReadAnew) {
  start();
  EntryRunner runner;
  runner.run({"AddEventListerToExistingGuiElements", "GUIDOC_Minimap", "test_button", "missing"});
  runner.run({"ReloadGui", "GUIDOC_Minimap"});
  session->endGame();
  gui().getIngameHud()->getMiniMapWindow()->findElementById("test_button")->Click();
  EXPECT_EQ(count(2, "Button was pressed: test_button"), 0);
}

TEST_F(GUIEventListenerTest, LetsGoOfElementsThatHaveAnotherIdByThen) {
  start();
  EntryRunner runner;
  runner.run({"AddEventListerToExistingGuiElements", "GUIDOC_Minimap", "test_button", "missing"});
  runner.run({"SetAttributeFromExistingGUI", "GUIDOC_Minimap", "test_button", "id", "renamed"});
  session->endGame();
  gui().getIngameHud()->getMiniMapWindow()->findElementById("renamed")->Click();
  EXPECT_EQ(count(2, "Button was pressed: renamed"), 0);
}

TEST_F(GUIEventListenerTest, MayGoBeforeAnEventComesToIt) {
  start();
  EntryRunner runner;
  Rocket::Core::Element* element = gui().getIngameHud()->getMiniMapWindow()->findElementById("test_button");
  OnEvent killer([] { GUIEventListener::destroy(); });
  element->AddEventListener("click", &killer);
  runner.run({"AddEventListerToExistingGuiElements", "GUIDOC_Minimap", "test_button", "missing"});
  element->Click();
  EXPECT_EQ(GUIEventListener::get(), nullptr);
  EXPECT_EQ(count(2, "Button was pressed: test_button"), 0);
}

TEST_F(GUIEventListenerTest, AReloadInsideTheWindowsOwnEventIsNoHarm) {
  start();
  EntryRunner runner;
  qsf::GuiDocument* window = gui().getIngameHud()->getMiniMapWindow();
  for (const bool inCapturePhase : {true, false})
    for (const char* id : {"test_button", "test_label"}) {
      OnEvent reload([&] { runner.run({"ReloadGui", "GUIDOC_Minimap"}); });
      window->getElementDocument()->AddEventListener("click", &reload, inCapturePhase);
      runner.run({"AddEventListerToExistingGuiElements", "GUIDOC_Minimap", id, "missing"});
      Rocket::Core::Element* before = window->findElementById(id);
      const std::shared_ptr<Rocket::Core::Element> held = before->shared_from_this();
      before->Click();
      EXPECT_NE(window->findElementById(id), before);
      EXPECT_TRUE(window->isVisible());
    }
}

TEST_F(GUIEventListenerTest, ProcessGUIEventRunsTheElementsOwnHandlingAlone) {
  start();
  EntryRunner runner;
  qsf::GuiDocument* window = gui().getIngameHud()->getMiniMapWindow();
  window->getElementDocument()->SetAttribute("onclick", "onClose");
  runner.run({"ProcessGUIEvent", "GUIDOC_Minimap", "test_button", "click"});
  EXPECT_TRUE(window->isVisible()) << "parents don't hear of it";
  window->findElementById("test_button")->SetAttribute("onclick", "onClose");
  runner.run({"ProcessGUIEvent", "GUIDOC_Minimap", "test_button", "mouseover"});
  EXPECT_TRUE(window->isVisible());
  runner.run({"ProcessGUIEvent", "GUIDOC_Minimap", "test_button", "click"});
  EXPECT_FALSE(window->isVisible());
}

TEST_F(GUIEventListenerTest, CheckGUIAddressKnowsDocumentsThatLive) {
  start();
  EntryRunner runner;
  GuiInstance* instance = &load("A");
  const auto numberOf = [](const qsf::GuiDocument* document) { return std::to_string(document->getAddress()); };
  const std::string scripts = numberOf(instance);
  runner.run({"CheckGUIAddress", scripts, "x"});
  EXPECT_EQ(count(2, "adress is " + scripts), 1);
  EXPECT_EQ(count(2, "ADDRESS IS NOT A GUI DOC"), 1);
  EXPECT_EQ(count(2, instance->getElementDocument()->GetInnerRML()), 1);
  runner.run({"CheckGUIAddress", numberOf(gui().getLoadingScreen()), "x"});
  EXPECT_EQ(count(2, gui().getLoadingScreen()->getElementDocument()->GetInnerRML()), 1);
  EXPECT_EQ(count(2, "ADDRESS IS NOT A GUI DOC!!!"), 0);

  instance->unload();
  runner.run({"CheckGUIAddress", scripts, "x"});
  EXPECT_EQ(count(2, "ADDRESS IS NOT A GUI DOC!!!"), 1) << "it shows nothing";
  GuiInstanceManager::destroy();
  runner.run({"CheckGUIAddress", scripts, "x"});
  EXPECT_EQ(count(2, "ADDRESS IS NOT A GUI DOC!!!"), 2) << "it has gone";
  EXPECT_ANY_THROW(runner.run({"CheckGUIAddress", "GUIDOC_Minimap", "x"}));
  EXPECT_ANY_THROW(runner.run({"CheckGUIAddress", "18446744073709551616", "x"}));
}

TEST_F(GUIEventListenerTest, EffectsDoNothingWithoutIt) {
  start();
  EntryRunner runner;
  GUIEventListener::destroy();
  GuiInstanceManager::destroy();
  log.clear();
  const std::string minimap = gui().getIngameHud()->getMiniMapWindow()->getElementDocument()->GetInnerRML();
  for (const Words& words :
       {Words{"AddEventListerToExistingGuiElements", "GUIDOC_Minimap", "test_button", "t"},
        Words{"SetAttributeFromExistingGUI", "GUIDOC_Minimap", "test_button", "a", "b"},
        Words{"SetInnerRMLFromExistingGUI", "GUIDOC_Minimap", "test_button", "b"},
        Words{"SimulateClickAtGUIButton", "GUIDOC_Minimap", "test_button"},
        Words{"ProcessGUIEvent", "GUIDOC_Minimap", "test_button", "click"}, Words{"WriteRMLDocument", "GUIDOC_Minimap"},
        Words{"WriteRMLClientWidthIntoVariable", "GUIDOC_Minimap", "test_label", "v"},
        Words{"ReloadGui", "GUIDOC_STARTGAME"}, Words{"ShowGuiDocument", "A", "false"},
        Words{"SetInnerRML", "A", "b", "c"}, Words{"SetAttribute", "A", "b", "c", "d"},
        Words{"AddOrRemoveClass", "A", "b", "c"}, Words{"ShowElement", "b"},
        Words{"ConnectButtonToTrigger", "b", "t", "A"}})
    runner.run(words);
  EXPECT_TRUE(log.empty()) << log.front().second;
  EXPECT_EQ(runner.handler->variables.size(), 0u);
  EXPECT_EQ(gui().getIngameHud()->getMiniMapWindow()->getElementDocument()->GetInnerRML(), minimap);
  EXPECT_FALSE(gui().getMainMenuManager()->getStartGameWindow()->isVisible());
}

}
