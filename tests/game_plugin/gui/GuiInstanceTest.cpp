#include "game_plugin/gui/GuiFixture.h"
#include "game_plugin/scenario/ScriptFixture.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

using namespace script;

namespace {

using GuiInstanceTest = GuiTest;

TEST_F(GuiInstanceTest, HasNoIdOfItsOwnAtFirst) {
  start();
  const GuiInstance instance(gui().getGuiContext(), writeDocument());
  EXPECT_EQ(instance.getUniqueId(), "-1");
  EXPECT_TRUE(instance.isVisible());
}

TEST_F(GuiInstanceTest, TellsOfEventsThatItIsAttachedTo) {
  start();
  Rocket::Core::Element* element = load("A").findElement("close");
  element->AddEventListener("mouseover", &load("B"));
  log.clear();
  element->DispatchEvent("mouseover", {});
  EXPECT_EQ(count(2, "Button wurde gedrueckt: close"), 1);
  EXPECT_EQ(count(2, "Button is not connected to trigger"), 0);
}

TEST_F(GuiInstanceTest, ShowingAnElementLeavesIt) {
  start();
  GuiInstance& instance = load("A");
  GuiInstance::showElement(*instance.findElement("go"), false);
  EXPECT_TRUE(instance.findElement("go")->IsVisible());
  instance.findElement("go")->SetAttribute("style", "display: none;");
  GuiInstance::showElement(*instance.findElement("go"), true);
  EXPECT_FALSE(instance.findElement("go")->IsVisible());
}

TEST_F(GuiInstanceTest, TheManagerLivesAsLongAsScriptsOfAMap) {
  EXPECT_EQ(GuiInstanceManager::get(), nullptr);
  load();
  ASSERT_NE(GuiInstanceManager::get(), nullptr) << "with the module";
  EXPECT_EQ(GuiDocuments::get(), GuiInstanceManager::get());
  session->startGame(EMPTY_MAP);
  const GuiInstanceManager* first = GuiInstanceManager::get();
  GuiInstanceManager::create();
  EXPECT_EQ(GuiInstanceManager::get(), first) << "it stays one object";
  load("A");
  load("B");
  session->endGame();
  EXPECT_EQ(GuiInstanceManager::get(), nullptr);
  EXPECT_EQ(GuiDocuments::get(), nullptr);
  EXPECT_EQ(count(2, "DestroyA"), 1);
  EXPECT_EQ(count(2, "DestroyB"), 1);
  session->startGame(EMPTY_MAP);
  ASSERT_NE(GuiInstanceManager::get(), nullptr);
  EXPECT_TRUE(instances().getInstances().empty());
}

TEST_F(GuiInstanceTest, DocumentsGoInTheOrderOfTheirLoading) {
  start();
  load("A");
  load("B");
  log.clear();
  GuiInstanceManager::destroy();
  ASSERT_EQ(log.size(), 2u);
  EXPECT_EQ(log[0].second, "DestroyA");
  EXPECT_EQ(log[1].second, "DestroyB");
  GuiInstanceManager::destroy();
  EXPECT_EQ(log.size(), 2u);
}

TEST_F(GuiInstanceTest, TheTrackerGoesOnceAndBehindTheDocuments) {
  start();
  instances().switchTracker(true);
  instances().switchTracker(true);
  load("A");
  load("B");
  EXPECT_NE(NamedDocument::find("audiotracker"), nullptr);
  log.clear();
  GuiInstanceManager::destroy();
  ASSERT_EQ(log.size(), 3u);
  EXPECT_EQ(log[1].second, "DestroyB");
  EXPECT_EQ(log[2].second, "destroy tracker");
  EXPECT_EQ(NamedDocument::find("audiotracker"), nullptr);
}

TEST_F(GuiInstanceTest, TheEditorHasTheManager) {
  load(em5::HostSession::Kind::EDITOR);
  ASSERT_NE(GuiInstanceManager::get(), nullptr);
  instances().LoadRMLFile(writeDocument(), "A");
  EXPECT_EQ(count(2, "EM5_GUI-Instance is a nullptr.. skipping LoadRMLFile"), 1);
  instances().switchTracker(true);
  instances().switchTracker(false);
  EXPECT_EQ(count(2, "destroy tracker"), 0);
  EXPECT_TRUE(instances().getInstances().empty());
}

TEST_F(GuiInstanceTest, VisibilityIsThatOfTheFirstOfAnId) {
  start();
  load("A").hide();
  load("A");
  EXPECT_FALSE(instances().isVisible("A"));
  instances().getInstances()[0]->show();
  EXPECT_TRUE(instances().isVisible("A"));
  EXPECT_FALSE(instances().isVisible("B"));
}

TEST_F(GuiInstanceTest, AHandlersConnectionsGoWithIt) {
  start();
  GuiInstance& instance = load("A");
  {
    EntryRunner runner;
    runner.run({"ConnectButtonToTrigger", "go", "Pressed", "A"});
    instance.findElement("go")->Click();
    log.clear();
    instance.findElement("frame")->SetAttribute("onclick", "");
    instance.findElement("go")->Click();
    EXPECT_EQ(count(2, "Activate Trigger Effect was not able to find the triggerPressed"), 1);
    EXPECT_EQ(count(2, "Button is not connected to trigger"), 0);
  }
  instance.findElement("go")->Click();
  EXPECT_EQ(count(2, "Activate Trigger Effect was not able to find the triggerPressed"), 1);
  EXPECT_EQ(count(2, "Button is not connected to trigger"), 1);
}

/// What ends documents of scripts.
struct End {
  const char* name;
  void (*end)(em5::HostSession& session);
};
std::ostream& operator<<(std::ostream& out, const End& end) { return out << end.name; }

const End ENDS[] = {
    {"ItsManager", [](em5::HostSession&) { GuiInstanceManager::destroy(); }},
    {"AllScripts", [](em5::HostSession&) { delete MapScriptManager::get(); }},
    {"AReload", [](em5::HostSession&) { MapScriptManager::replace(false).StartMapScripts(); }},
    {"TheGame", [](em5::HostSession& session) { session.endGame(); }},
    {"AnotherGame", [](em5::HostSession& session) { session.startGame("em5/map/test/other"); }},
};

/// The element at which it ends, and whether on the event's way down.
class EndingGuiInstanceTest : public GuiTest, public testing::WithParamInterface<std::tuple<End, const char*, bool>> {};

TEST_P(EndingGuiInstanceTest, EndsInsideAnEventOfItsOwn) {
  const auto& [end, elementId, inCapturePhase] = GetParam();
  for (const char* type : {"click", "onClose", "keydown", "hide", "show"}) {
    SCOPED_TRACE(type);
    session.reset();
    start();
    GuiInstance& instance = load("A");
    bool ended = false;
    OnEvent killer([&, call = end.end] {
      ended = true;
      call(*session);
    });
    const bool isClick = std::string(type) == "click" || std::string(type) == "onClose";
    const std::string target = std::string(type) == "onClose" ? "close" : isClick ? "go" : "body";
    // An event of the document itself meets no other element.
    Rocket::Core::Element* element = instance.findElement(target == "go" ? elementId : target);
    element->AddEventListener(isClick ? "click" : type, &killer, inCapturePhase);
    if (isClick)
      instance.findElement(target)->Click();
    else if (std::string(type) == "keydown")
      instance.getElementDocument()->DispatchEvent("keydown", {});
    else {
      instance.setVisible(std::string(type) == "hide" ? false : true);
      if (!ended) instance.setVisible(false);
      if (!ended) instance.setVisible(true);
    }
    EXPECT_TRUE(ended);
    run(0.2);
  }
}

INSTANTIATE_TEST_SUITE_P(Ends, EndingGuiInstanceTest,
                         testing::Combine(testing::ValuesIn(ENDS), testing::Values("body", "frame", "go"),
                                          testing::Bool()),
                         [](const testing::TestParamInfo<EndingGuiInstanceTest::ParamType>& info) {
                           return std::string(std::get<0>(info.param).name) + "At" + std::get<1>(info.param) +
                                  (std::get<2>(info.param) ? "OnTheWayDown" : "");
                         });

}
