// What keys of the input queue do to documents and videos.
#include "Rocket/Core.h"
#include "em5/gui/EmergencyGui.h"
#include "host/em5/SessionFixture.h"
#include "qsf/input/InputSystem.h"

namespace {

/// A window that notes the names under which events are handed to it.
class Window : public qsf::GuiDocument {
public:
  Window(qsf::GuiContext& context, const std::string& file) : GuiDocument(context) {
    EXPECT_TRUE(loadByFilename(file));
    show();
  }
  void processEvent(const std::string& name, Rocket::Core::Event& event) override {
    heard += name + ":" + event.GetType() + ":" + event.GetParameter("key_identifier", Rocket::Core::String()) + " ";
    const std::function<void()> present = onEvent; // it may end this window
    if (present) present();
  }
  void click(const char* id) { findElementById(id)->Click(); }

  std::string heard;
  std::function<void()> onEvent;
};

class GuiInputTest : public SessionTest {
protected:
  void SetUp() override {
    SessionTest::SetUp();
    play();
    write("gui", "a.rml",
          "<rml><body id=\"body\" onkeydown=\"down\" onkeyup=\"up\"><div id=\"text\">x</div></body></rml>");
  }
  std::unique_ptr<Window> makeWindow() {
    return std::make_unique<Window>(gui().getGuiContext(), folder() + "/gui/a.rml");
  }
  void queue(const char* key, bool pressed) {
    qsf::InputSystem& input = session->getQsf().getInputSystem();
    input.addEventToInputQueue(std::make_unique<qsf::KeyboardEvent>(*input.getKeyboard().findButton(key), pressed));
  }
  static em5::EmergencyGui& gui() { return *qsf::UniqueInstance<em5::EmergencyGui>(); }
};

TEST_F(GuiInputTest, TheDocumentThatWasClickedLastHearsTheKeys) {
  const auto first = makeWindow();
  const auto second = makeWindow();
  queue("A", true);
  run(0.05);
  EXPECT_EQ(first->heard + second->heard, "") << "nobody has the focus";
  first->click("text");
  second->click("text");
  queue("A", true);
  queue("A", false);
  EXPECT_EQ(second->heard, "") << "with the next frame";
  run(0.05);
  EXPECT_EQ(second->heard, "down:keydown:A up:keyup:A ");
  EXPECT_EQ(first->heard, "");
}

TEST_F(GuiInputTest, AHiddenDocumentHasNoFocus) {
  const auto window = makeWindow();
  window->showFocused();
  window->hide();
  queue("A", true);
  run(0.05);
  window->show();
  queue("A", true);
  run(0.05);
  EXPECT_EQ(window->heard, "");
  window->showFocused();
  queue("A", true);
  run(0.05);
  EXPECT_EQ(window->heard, "down:keydown:A ");
}

TEST_F(GuiInputTest, ADocumentMayGoInsideItsKeyEvent) {
  auto window = makeWindow();
  window->showFocused();
  window->onEvent = [&] { window.reset(); };
  queue("A", true);
  queue("A", false);
  run(0.1);
  EXPECT_EQ(window, nullptr);
  EXPECT_EQ(gui().getGuiContext().getFocusedDocument(), nullptr);
}

TEST_F(GuiInputTest, ADocumentMayLoadAnewInsideItsKeyEvent) {
  const auto window = makeWindow();
  window->showFocused();
  window->onEvent = [&] {
    window->unload();
    window->loadByFilename(folder() + "/gui/a.rml");
    window->showFocused();
  };
  queue("A", true);
  queue("B", true);
  run(0.1);
  EXPECT_EQ(window->heard, "down:keydown:A down:keydown:B ");
}

TEST_F(GuiInputTest, EscapeEndsTheVideoThatPlays) {
  qsf::GuiDocument* window = gui().getIngameHud()->getFullscreenVideoWindow();
  Rocket::Core::Element* video = window->findElementById("video");
  ASSERT_NE(video, nullptr);
  window->show();
  video->SetAttribute("src", "em5/video/intro");
  queue("A", true);
  queue("Escape", false);
  run(0.05);
  EXPECT_TRUE(video->HasAttribute("src")) << "only Escape, going down";
  queue("Escape", true);
  run(0.05);
  EXPECT_FALSE(video->HasAttribute("src"));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(GuiInputTest, EscapeLeavesWhatDoesNotPlay) {
  qsf::GuiDocument* window = gui().getIngameHud()->getFullscreenVideoWindow();
  window->show();
  queue("Escape", true);
  run(0.05);
  EXPECT_TRUE(window->isVisible()) << "no source";
  qsf::GuiDocument* menuWindow = gui().getMainMenuManager()->getVideoPlayerWindow();
  ASSERT_NE(menuWindow->findElementById("video"), nullptr);
  menuWindow->findElementById("video")->SetAttribute("src", "em5/video/intro");
  menuWindow->hide();
  queue("Escape", true);
  run(0.05);
  EXPECT_TRUE(menuWindow->findElementById("video")->HasAttribute("src")) << "hidden";
}

TEST_F(GuiInputTest, OnCloseHidesAWindowOfTheGame) {
  qsf::GuiDocument* window = gui().getIngameHud()->getMiniMapWindow();
  Rocket::Core::Element* element = window->findElementById("test_button");
  ASSERT_NE(element, nullptr);
  element->SetAttribute("onclick", "close");
  element->Click();
  EXPECT_TRUE(window->isVisible());
  element->SetAttribute("onclick", "onClose");
  element->Click();
  EXPECT_FALSE(window->isVisible());
}

}
