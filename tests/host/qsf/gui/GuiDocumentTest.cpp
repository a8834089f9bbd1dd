#include "qsf/gui/GuiDocument.h"

#include "Rocket/Core.h"
#include "host/em5/SessionFixture.h"
#include "qsf/gui/GuiContext.h"

namespace {

/// Notes what it is told, and does more if it is told to.
class Window : public qsf::GuiDocument {
public:
  Window(qsf::GuiContext& context, std::string& heard) : GuiDocument(context, "window"), mHeard(heard) {}
  void processEvent(const std::string& name, Rocket::Core::Event& event) override {
    mHeard += name + ":" + event.GetType() + " ";
    act();
  }
  bool onPreShow() override { return note("preShow"); }
  void onPostShow() override { note("postShow"); }
  bool onPreHide() override { return note("preHide"); }
  void onPostHide() override { note("postHide"); }

  bool willing = true;
  std::function<void()> action;

private:
  void act() const {
    const std::function<void()> present = action; // it may end this window
    if (present) present();
  }
  bool note(const std::string& what) {
    mHeard += what + " ";
    const bool answer = willing;
    act();
    return answer;
  }
  std::string& mHeard;
};

class GuiDocumentTest : public SessionTest {
protected:
  void SetUp() override {
    SessionTest::SetUp();
    open().startup();
    makeWindow();
  }
  void TearDown() override {
    window.reset();
    SessionTest::TearDown();
  }
  void makeWindow() { window = std::make_unique<Window>(context, heard); }
  std::string file(const std::string& rml) { return write("gui", "x.rml", rml) + "/x.rml"; }
  Rocket::Core::Element& element(const std::string& id) { return *window->findElementById(id); }

  qsf::GuiContext context;
  std::string heard;
  std::unique_ptr<Window> window;
};

TEST_F(GuiDocumentTest, WhatLooksLikeAFileAndCannotBeReadIsNotLoaded) {
  for (const char* path : {"/dev/zero", "/", ".", "", "/proc/self/fd/0/x"})
    EXPECT_FALSE(window->loadByFilename(path)) << path;
  EXPECT_EQ(window->getElementDocument(), nullptr);
  EXPECT_NO_THROW(window->loadByFilename("/proc/self/mem")) << "an ordinary file, it says, of no length";
}

TEST_F(GuiDocumentTest, AFileIsLoadedByItsPath) {
  const std::string path = file("<p id=\"p\">hello</p>");
  EXPECT_EQ(window->getElementDocument(), nullptr);
  EXPECT_EQ(window->findElementById("p"), nullptr);
  EXPECT_TRUE(window->loadByFilename(path));
  EXPECT_EQ(window->getElementDocument()->GetSourceURL(), path);
  EXPECT_EQ(element("p").GetText(), "hello");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(GuiDocumentTest, AnAssetIsLoadedByItsLocalName) {
  const std::string project = writeProject("desk");
  write("desk", "gui/windows/note.rml",
        "<rml><head><link type=\"text/rcss\" href=\"../style/note.rcss\"/></head>"
        "<body><p id=\"p\">note</p></body></rml>");
  write("desk", "gui/style/note.rcss", "p { width: 33px; }");
  session->mountMod(project);
  EXPECT_TRUE(window->loadByFilename("desk/gui/windows/note"));
  EXPECT_TRUE(window->loadByFilename("desk/gui/windows/note.rml"));
  EXPECT_EQ(element("p").GetClientWidth(), 33);
  EXPECT_FALSE(window->loadByFilename("desk/gui/windows/note.txt"));
}

TEST_F(GuiDocumentTest, WhatCantBeLoadedLeavesWhatWasThere) {
  EXPECT_TRUE(window->loadByFilename(file("<p id=\"p\">first</p>")));
  EXPECT_FALSE(window->loadByFilename("no/such/file.rml"));
  EXPECT_FALSE(window->loadByFilename("/dev/zero"));
  EXPECT_FALSE(window->loadByFilename("/"));
  EXPECT_FALSE(window->loadByFilename(""));
  EXPECT_FALSE(window->loadByFilename(file("<p id=\"p\">second")));
  EXPECT_EQ(element("p").GetText(), "first");
  EXPECT_TRUE(logged(qsf::LogSystem::WARNING, "x.rml\" can't be read, line 1, column "));
  EXPECT_TRUE(window->unload());
  EXPECT_FALSE(window->unload());
  EXPECT_EQ(window->findElementById("p"), nullptr);
}

TEST_F(GuiDocumentTest, ItHearsTheEventsThatItsRmlHandsOn) {
  window->loadByFilename(file("<body onclick=\"all\"><p id=\"p\" onclick=\"one\" onchange=\"changed\"/></body>"));
  element("p").Click();
  element("p").DispatchEvent("change", {});
  EXPECT_EQ(heard, "one:click all:click changed:change ");
}

TEST_F(GuiDocumentTest, ShowingAndHidingAsksAndTells) {
  window->loadByFilename(file("<rml><body onshow=\"shown\" onhide=\"hidden\"><p id=\"p\"/></body></rml>"));
  window->show();
  window->show();
  EXPECT_TRUE(element("p").IsVisible());
  window->toggleVisibility();
  EXPECT_EQ(heard, "preShow shown:show postShow preHide hidden:hide postHide ");
  EXPECT_FALSE(element("p").IsVisible());
  heard.clear();
  window->willing = false;
  window->setVisible(true);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(heard, "preShow ");
}

TEST_F(GuiDocumentTest, TheOneThatWasShownWithFocusHasIt) {
  EXPECT_EQ(context.getFocusedDocument(), nullptr);
  window->showFocused();
  EXPECT_EQ(context.getFocusedDocument(), window.get());
  window->hide();
  EXPECT_EQ(context.getFocusedDocument(), nullptr);
  window->showFocused();
  window.reset();
  EXPECT_EQ(context.getFocusedDocument(), nullptr);
}

TEST_F(GuiDocumentTest, ADocumentIsFoundByItsAddressWhileItLives) {
  const std::uint64_t address = window->getAddress();
  EXPECT_NE(address, 0u);
  EXPECT_EQ(context.findDocumentByAddress(address), window.get());
  EXPECT_EQ(context.findDocumentByAddress(address + 1), nullptr);
  EXPECT_EQ(context.findDocumentByAddress(0), nullptr);
  window.reset();
  EXPECT_EQ(context.findDocumentByAddress(address), nullptr);
  makeWindow();
  EXPECT_NE(window->getAddress(), address);
}

TEST_F(GuiDocumentTest, ItMayEndInsideItsOwnEvents) {
  const std::string path = file(
      "<rml><body onshow=\"s\" onhide=\"h\"><div onclick=\"outer\"><p id=\"p\" onclick=\"c\"/></div></body></rml>");
  const std::function<void()> ends[] = {[this] { window.reset(); }, [this] { window->unload(); },
                                        [&] { window->loadByFilename(path); }};
  const std::function<void()> starts[] = {[this] { element("p").Click(); }, [this] { window->show(); },
                                          [this] { window->showFocused(); }, [this] { window->toggleVisibility(); },
                                          [this] {
                                            window->show();
                                            if (window) window->hide();
                                          }};
  int ended = 0;
  for (const auto& end : ends)
    for (const auto& start : starts) {
      makeWindow();
      ASSERT_TRUE(window->loadByFilename(path));
      // Only the first call: hiding by unloading calls again.
      window->action = [&, done = false]() mutable {
        if (std::exchange(done, true) || !window) return;
        ++ended;
        window->action = nullptr;
        end();
      };
      start();
    }
  EXPECT_EQ(ended, 15);
}

}
