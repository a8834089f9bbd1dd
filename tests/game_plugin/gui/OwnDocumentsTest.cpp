#include "game_plugin/gui/AudioTrackerGUI.h"
#include "game_plugin/gui/CommandLine.h"
#include "game_plugin/gui/DebuggerStarter.h"
#include "game_plugin/gui/DebuggerWindow.h"
#include "game_plugin/gui/GuiFixture.h"
#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "em5/base/Jobs.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/job/JobManagers.h"

#include <limits>

using namespace script;

namespace {

using OwnDocumentsTest = GuiTest;

TEST_F(OwnDocumentsTest, LiveAsLongAsScriptsOfAMap) {
  EXPECT_EQ(NamedDocument::find("basic"), nullptr);
  load();
  EXPECT_EQ(ScenarioBasicGui::get(), nullptr) << "no game runs yet";
  session->startGame(EMPTY_MAP);
  for (const char* name : {"basic", "actionbar", "debugger"}) {
    ASSERT_NE(NamedDocument::find(name), nullptr) << name;
    EXPECT_FALSE(NamedDocument::find(name)->isVisible()) << name;
  }
  EXPECT_EQ(NamedDocument::find("basic"), ScenarioBasicGui::get());
  EXPECT_EQ(NamedDocument::find("audiotracker"), nullptr);
  const ScenarioBasicGui* first = ScenarioBasicGui::get();
  ScenarioBasicGui::create(gui().getGuiContext());
  CommandLine::create(gui().getGuiContext());
  EXPECT_EQ(ScenarioBasicGui::get(), first);
  EXPECT_EQ(count(2, "scenario basic gui start1"), 2);
  EXPECT_EQ(count(2, "scenario basic gui start 2"), 1);
  session->endGame();
  for (const char* name : {"basic", "actionbar", "debugger"})
    EXPECT_EQ(NamedDocument::find(name), nullptr) << name;
}

TEST_F(OwnDocumentsTest, TheEditorHasNone) {
  addScript("idle", "EDITOR_STARTUP", "InitNewTrigger(\"a\", false, false);");
  load(em5::HostSession::Kind::EDITOR);
  session->startGame(EMPTY_MAP);
  run(0.5);
  for (const char* name : {"basic", "actionbar", "debugger"})
    EXPECT_EQ(NamedDocument::find(name), nullptr) << name;
}

TEST_F(OwnDocumentsTest, AllChildrenOfTheSharedOneAreHiddenAtFirst) {
  start();
  Rocket::Core::ElementDocument* document = ScenarioBasicGui::get()->getElementDocument();
  ASSERT_NE(document, nullptr);
  EXPECT_GE(document->GetNumChildren(), 10);
  for (int i = 0; i < document->GetNumChildren(); ++i) {
    ASSERT_NE(document->GetChild(i)->GetLocalProperty("display"), nullptr);
    EXPECT_EQ(*document->GetChild(i)->GetLocalProperty("display"), "none");
  }
}

TEST_F(OwnDocumentsTest, AWindowWithoutTextsHasNoJob) {
  start();
  const std::size_t jobs = session->getQsf().getJobManagers().getNumberOfJobs(em5::Jobs::SIMULATION_LOGIC);
  ScenarioBasicGui::get()->ShowText("big_text", "a", 0, 0.1f, "", 0, "");
  EXPECT_EQ(session->getQsf().getJobManagers().getNumberOfJobs(em5::Jobs::SIMULATION_LOGIC), jobs + 1);
  run(0.3);
  EXPECT_EQ(session->getQsf().getJobManagers().getNumberOfJobs(em5::Jobs::SIMULATION_LOGIC), jobs);
}

TEST_F(OwnDocumentsTest, TimesThatAreNoNumbersHurtNobody) {
  start();
  const float odd[] = {0,
                       -1,
                       std::numeric_limits<float>::infinity(),
                       -std::numeric_limits<float>::infinity(),
                       std::numeric_limits<float>::quiet_NaN(),
                       1e-30f,
                       3e38f};
  for (const float fade : odd)
    for (const float total : odd)
      for (const int effect : {0, 1}) {
        ScenarioBasicGui::get()->ShowText("big_text", "§ text", fade, total, "", effect, "");
        run(0.2);
      }
  EXPECT_FALSE(logged(3, "")) << "a warning";
  EXPECT_FALSE(logged(4, "")) << "an error";
}

TEST_F(OwnDocumentsTest, ATextInACodePageIsTypedToItsEnd) {
  start();
  ScenarioBasicGui::get()->ShowText("big_text", "\x80\x80\x80\x80\x80\x80", 0.5f, 9, "", 1, "");
  run(1);
  EXPECT_FALSE(logged(4, "")) << "an error";
}

TEST_F(OwnDocumentsTest, TheTrackerCopiesTheCountersOfTheSoundSystem) {
  start();
  session->getQsf().getAudioSystem().getAudioManager().overrideStatistics(qsf::AudioManager::Statistics{11, 22, 33});
  AudioTrackerGUI tracker(gui().getGuiContext());
  EXPECT_TRUE(tracker.isVisible());
  run(0.1);
  EXPECT_EQ(tracker.findElementById("text_right")->GetText(), "11");
  EXPECT_EQ(tracker.findElementById("text_up")->GetText(), "22");
  EXPECT_EQ(tracker.findElementById("text_left")->GetText(), "33");
  EXPECT_EQ(tracker.findElementById("text_down")->GetText(), "0");
  tracker.findElementById("close")->Click();
  EXPECT_FALSE(tracker.isVisible());
}

TEST_F(OwnDocumentsTest, TheTrackerTellsOfElementsThatItListensToAndOfItsEnd) {
  start();
  auto tracker = std::make_unique<AudioTrackerGUI>(gui().getGuiContext());
  Rocket::Core::Element* element = tracker->findElementById("close");
  element->AddEventListener("click", tracker.get());
  element->Click();
  EXPECT_EQ(count(2, "Button wurde gedrueckt: close"), 1);
  tracker.reset();
  EXPECT_EQ(count(2, "destroy tracker"), 1);
  EXPECT_EQ(NamedDocument::find("audiotracker"), nullptr);
  run(0.1);
}

TEST_F(OwnDocumentsTest, TheFirstStarterHasTheDebuggerMade) {
  start();
  { const DebuggerStarter second; }
  session->endGame();
  EXPECT_EQ(DebuggerWindow::get(), nullptr);
  session->startGame(EMPTY_MAP);
  EXPECT_NE(DebuggerWindow::get(), nullptr);
}

/// What ends the module's own documents.
struct End {
  const char* name;
  void (*end)(em5::HostSession& session);
};
std::ostream& operator<<(std::ostream& out, const End& end) { return out << end.name; }

const End ENDS[] = {
    {"Itself",
     [](em5::HostSession&) {
       ScenarioBasicGui::destroy();
       CommandLine::destroy();
       DebuggerWindow::destroy();
     }},
    {"AllScripts", [](em5::HostSession&) { delete MapScriptManager::get(); }},
    {"AReload", [](em5::HostSession&) { MapScriptManager::reloadInGame(); }},
    {"TheGame", [](em5::HostSession& session) { session.endGame(); }},
    {"AnotherGame", [](em5::HostSession& session) { session.startGame("em5/map/test/other"); }},
};

class EndingOwnDocumentTest : public GuiTest, public testing::WithParamInterface<std::tuple<End, const char*>> {
protected:
  void fire(const char* document, const char* elementId, const char* type, bool inCapturePhase) {
    qsf::GuiDocument* window = NamedDocument::find(document);
    ASSERT_NE(window, nullptr);
    window->show();
    Rocket::Core::Element* target = window->findElementById(elementId);
    ASSERT_NE(target, nullptr) << elementId;
    bool ended = false;
    OnEvent killer([&] {
      ended = true;
      std::get<0>(GetParam()).end(*session);
    });
    // The window itself hides, whichever element it stands on.
    const bool hides = std::string(type) == "hide";
    Rocket::Core::Element* heard = hides || inCapturePhase ? window->getElementDocument() : target;
    heard->AddEventListener(type, &killer, inCapturePhase && !hides);
    if (hides)
      window->hide();
    else
      target->DispatchEvent(type, {});
    EXPECT_TRUE(ended);
    run(0.2);
  }
};

TEST_P(EndingOwnDocumentTest, EndsInsideAnEventOfItsOwn) {
  const std::string document = std::get<1>(GetParam());
  const char* element = document == "basic" ? "id1" : document == "actionbar" ? "1" : "debug_text";
  const char* button = document == "basic" ? "id2" : document == "actionbar" ? "toggle" : "close";
  for (const char* type : {"click", "mouseover", "hide"})
    for (const char* target : {element, button})
      for (const bool inCapturePhase : {false, true}) {
        SCOPED_TRACE(std::string(type) + " at " + target + (inCapturePhase ? " on the way down" : ""));
        session.reset();
        start();
        fire(document.c_str(), target, type, inCapturePhase);
      }
}

INSTANTIATE_TEST_SUITE_P(Ends, EndingOwnDocumentTest,
                         testing::Combine(testing::ValuesIn(ENDS), testing::Values("basic", "actionbar", "debugger")),
                         [](const testing::TestParamInfo<EndingOwnDocumentTest::ParamType>& info) {
                           return std::string(std::get<0>(info.param).name) + "Of" + std::get<1>(info.param);
                         });

TEST_F(OwnDocumentsTest, EndingInsideItsOwnEndIsNothingNew) {
  start();
  DebuggerWindow* window = DebuggerWindow::get();
  window->show();
  int ends = 0;
  OnEvent killer([&] {
    ++ends;
    DebuggerWindow::destroy();
  });
  window->getElementDocument()->AddEventListener("hide", &killer);
  DebuggerWindow::destroy();
  EXPECT_EQ(ends, 1) << "it hides when it ends";
  EXPECT_EQ(DebuggerWindow::get(), nullptr);
}

TEST_F(OwnDocumentsTest, AReloadFromTheMenuEndsTheWindowThatHearsIt) {
  addScript("idle", "MAP_STARTUP", "InitNewTrigger(\"a\", false, false);");
  start();
  Rocket::Core::Element* button = gui().getIngameHud()->getIngameMainMenuWindow()->findElementById("reload_scripts");
  ASSERT_NE(button, nullptr);
  for (int i = 2; i < 5; ++i) {
    button->Click();
    EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), i);
  }
  EXPECT_NE(DebuggerWindow::get(), nullptr);
  DebuggerWindow::destroy();
  button->Click();
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 4) << "nobody listens any more";
}

}
