// `tidemark run --screens`: the documents as pages, in files and in Chromium. TIDEMARK_SCREENSHOTS=FOLDER keeps the
// pictures for people.
#include "tests/apps/tidemark/ProgramFixture.h"
#include "tests/support/Browser.h"
#include "tests/support/Paths.h"

#include <array>
#include <cstdlib>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

const char* const SCRIPT = R"(InitNewTrigger("Start", true, false);
InitConditions();
InitEffects();
LoadRmlFile("gui/desk.rml", "desk");
ShowText("big_text", "The harbour burns", 0.1, 60, "color: #ffffff;", 0, "");
ShowLetterBoxes(true);
ShowSubtitle(true, "Engine two, go", "", "no_picture.png", "");
ShowChoiceDialogue("What now?", "Which way?", "Left", "a", "Right", "b");
)";
const char* const DESK = R"(<rml><head><title>Desk</title><style>
.panel { position: absolute; left: 100px; top: 200px; width: 300px; height: 80px; background-color: #203040; }
p.late { color: #ff0000; } #there, #missing { width: 40px; height: 30px; } .off { display: none; }
</style></head><body><div class="panel"><p id="p" class="late" onclick="x">a &lt;b&gt; c</p><p id="gone" class="off">no</p>
<img id="there" src="dot.png"/><img id="missing" src="none.dds"/><p id="outer"><div id="inner">in</div></p>
<img id="sizeless" src="a.dds" style="position: absolute; left: 400px; top: 300px;"/>
<script>document.title = 'run'</script><table><tr>cell</tr></table></div></body></rml>
)";
// A picture of one red pixel.
constexpr unsigned char DOT_BYTES[] = {
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52, 0x00, 0x00,
    0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00, 0x00, 0x90, 0x77, 0x53, 0xde, 0x00, 0x00, 0x00,
    0x0c, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9c, 0x63, 0xf8, 0xcf, 0xc0, 0x00, 0x00, 0x03, 0x01, 0x01, 0x00, 0xc9,
    0xfe, 0x92, 0xef, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
const std::string DOT(std::begin(DOT_BYTES), std::end(DOT_BYTES));

class Screens : public Program {
protected:
  void writeDesk() const {
    writeProject(SCRIPT);
    write("gui/desk.rml", DESK);
    write("gui/dot.png", DOT);
  }
  std::string screens() const { return folder() + "/screens"; }
  void runDesk(std::vector<std::string> more = {}) const {
    writeDesk();
    std::vector<std::string> arguments{"run", folder(), "--seconds", "1", "--screens", screens()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.code, 0) << outcome.output;
  }
  /// The page of a document at a moment.
  std::string page(const std::string& moment, const std::string& name) const {
    for (const auto& entry : fs::directory_iterator(screens() + "/" + moment))
      if (entry.path().stem().string().substr(3) == name) return entry.path().string();
    ADD_FAILURE() << "no page " << name << " at " << moment;
    return "";
  }
};

TEST_F(Screens, AreWrittenForEachMomentAndForTheEnd) {
  runDesk({"--screens-at", "0", "--screens-at", "0.5"});
  EXPECT_FALSE(fs::exists(screens() + "/0.00s/desk.html"));
  EXPECT_TRUE(fs::exists(page("0.00s", "minimap"))); // the HUD, before the script
  EXPECT_TRUE(fs::exists(page("0.50s", "desk")));
  EXPECT_TRUE(fs::exists(page("1.00s", "desk")));
  const std::string index = readAll(screens() + "/index.html");
  EXPECT_NE(index.find("id=\"0.00s\""), std::string::npos);
  EXPECT_NE(index.find("id=\"1.00s\""), std::string::npos);
  EXPECT_NE(index.find("-desk.html#over"), std::string::npos);
}

TEST_F(Screens, HoldNoHiddenDocument) {
  runDesk();
  for (const auto& entry : fs::directory_iterator(screens() + "/1.00s")) { // the letter boxes have hidden the HUD
    const std::string name = entry.path().stem().string();
    EXPECT_TRUE(name.ends_with("-desk") || name.ends_with("-basic_mapscript_gui")) << name;
  }
}

TEST_F(Screens, NeedAFolderThatCanBeMade) {
  writeDesk();
  write("file", "");
  const Outcome outcome = run({"run", folder(), "--seconds", "0", "--screens", folder() + "/file"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("can't be made"), std::string::npos) << outcome.output;
  EXPECT_EQ(run({"run", folder(), "--screens-at", "1"}).code, 2);
}

TEST_F(Screens, AnEditorHasNone) {
  writeDesk();
  EXPECT_EQ(run({"run", folder(), "--editor", "--seconds", "0.1", "--screens", screens()}).code, 0);
  EXPECT_NE(readAll(screens() + "/index.html").find("No document was visible."), std::string::npos);
}

class BrowsedScreens : public Screens {
protected:
  BrowsedScreens() : browser(folder() + "/profile") { browser.resize(1280, 720); }
  void open(const std::string& file) { browser.open("file://" + file); }
  nlohmann::json place(const std::string& selector) {
    return browser.evaluate("(() => { const r = document.querySelector('" + selector +
                            "').getBoundingClientRect(); return [r.left, r.top, r.width, r.height] })()");
  }
  nlohmann::json style(const std::string& selector, const std::string& property) {
    return browser.evaluate("getComputedStyle(document.querySelector('" + selector + "'))['" + property + "']");
  }
  void keepPicture(const std::string& name) {
    const std::string picture = browser.screenshot();
    EXPECT_TRUE(picture.starts_with("\x89PNG"));
    if (const char* kept = std::getenv("TIDEMARK_SCREENSHOTS"))
      std::ofstream(fs::path(kept) / (name + ".png"), std::ios::binary) << picture;
  }

  Browser browser;
};

class ScreensInABrowser : public BrowsedScreens {
protected:
  ScreensInABrowser() { runDesk(); }
};

TEST_F(ScreensInABrowser, AnAuthorsDocumentLooksAsItsStyleSays) {
  open(page("1.00s", "desk"));
  EXPECT_EQ(browser.evaluate("document.title"), "Desk");
  EXPECT_EQ(place(".panel"), nlohmann::json({100, 200, 300, 80}));
  EXPECT_EQ(style(".panel", "backgroundColor"), "rgb(32, 48, 64)");
  EXPECT_EQ(style("#p", "color"), "rgb(255, 0, 0)");
  EXPECT_EQ(browser.evaluate("document.querySelector('#p').textContent"), "a <b> c");
  EXPECT_EQ(browser.evaluate("document.querySelector('#p').dataset.onclick"), "x");
  EXPECT_EQ(style("#gone", "display"), "none");
  EXPECT_EQ(browser.evaluate("document.querySelector('#inner').parentElement.id"), "outer");
  EXPECT_EQ(browser.evaluate("document.querySelectorAll('script, table').length"), 0);
  EXPECT_EQ(browser.evaluate("document.querySelector('#there').naturalWidth"), 1);
  EXPECT_EQ(place("#missing")[2], 40);
  // A frame with its name is in its place.
  EXPECT_NE(browser.evaluate("atob(document.querySelector('#missing').src.split(',')[1])")
                .get<std::string>()
                .find(">none.dds</text>"),
            std::string::npos);
  EXPECT_EQ(place("#sizeless"), nlohmann::json({500, 500, 64, 64}));
  keepPicture("desk");
}

TEST_F(ScreensInABrowser, TheModulesTextsStandWhereTheGameWouldPlaceThem) {
  open(page("1.00s", "basic_mapscript_gui"));
  EXPECT_EQ(style("#LetterBoxUp", "backgroundColor"), "rgb(0, 0, 0)");
  EXPECT_EQ(place("#LetterBoxUp"), nlohmann::json({0, 0, 1280, 90}));
  EXPECT_EQ(place("#LetterBoxDown"), nlohmann::json({0, 630, 1280, 90}));
  EXPECT_EQ(browser.evaluate("document.querySelector('#big_text').innerText"), "The harbour burns");
  EXPECT_EQ(style("#big_text", "opacity"), "1");
  EXPECT_EQ(browser.evaluate("document.querySelector('#subtitle_text').innerText"), "Engine two, go");
  for (const char* button : {"#id1", "#id2"}) {
    const nlohmann::json at = place(button);
    EXPECT_GT(at[2], 100);
    EXPECT_GE(at[0], 390);
    EXPECT_LE(at[0].get<double>() + at[2].get<double>(), 890) << button; // inside the dialogue's window
    EXPECT_GE(at[1], 220);
    EXPECT_LE(at[1].get<double>() + at[3].get<double>(), 502) << button;
  }
  keepPicture("basic");
}

TEST_F(ScreensInABrowser, TheIndexLaysThePagesOverEachOtherAndAsksForNothingElse) {
  open(screens() + "/index.html");
  EXPECT_EQ(browser.evaluate("document.querySelectorAll('.stage iframe').length"), 2);
  for (const std::string& request : browser.requests())
    EXPECT_TRUE(request.starts_with("file://" + screens()) || request.starts_with("data:") ||
                request.starts_with("about:"))
        << request;
  keepPicture("screens");
}

/// The harbour's morning: its title at 2 s, the choice that its mission waits for at 10.6 s.
class ScreensOfTheHarbour : public BrowsedScreens {
protected:
  ScreensOfTheHarbour() {
    fs::copy(fs::path(paths::sourceDirectory()) / "examples/harbour", folder(), fs::copy_options::recursive);
    const Outcome outcome = run({"run", folder(), "--seconds", "11", "--log-level", "error", "--screens", screens(),
                                 "--screens-at", "2", "--screens-at", "10.6"});
    EXPECT_EQ(outcome.code, 0) << outcome.output;
  }
  /// Left, top, right, bottom.
  std::array<double, 4> bounds(const std::string& selector) {
    const nlohmann::json at = place(selector);
    return {at[0], at[1], at[0].get<double>() + at[2].get<double>(), at[1].get<double>() + at[3].get<double>()};
  }
};

TEST_F(ScreensOfTheHarbour, TheTitleStandsInTheMiddle) {
  open(page("2.00s", "basic_mapscript_gui"));
  EXPECT_EQ(browser.evaluate("document.querySelector('#big_text').innerText"), "A morning in the harbour");
  EXPECT_EQ(style("#big_text", "opacity"), "1");
  EXPECT_NE(style("#big_text", "display"), "none");
  EXPECT_EQ(style("#LetterBoxUp", "display"), "none");
  const auto title = bounds("#big_text");
  EXPECT_NEAR((title[0] + title[2]) / 2, 640, 2);
  open(page("2.00s", "board"));
  EXPECT_NE(browser.evaluate("document.body.innerText").get<std::string>().find("Harbour board"), std::string::npos);
}

TEST_F(ScreensOfTheHarbour, TheChoiceIsAskedBetweenBlackBars) {
  open(page("10.60s", "basic_mapscript_gui"));
  for (const char* bar : {"#LetterBoxUp", "#LetterBoxDown"}) {
    EXPECT_EQ(style(bar, "backgroundColor"), "rgb(0, 0, 0)");
    EXPECT_NE(style(bar, "display"), "none") << bar;
    EXPECT_EQ(place(bar)[2], 1280);
  }
  EXPECT_NE(
      browser.evaluate("document.querySelector('#subtitle_text').innerText").get<std::string>().find("There is fire"),
      std::string::npos);
  const auto window = bounds("#bg35");
  for (const auto& [button, text] : {std::pair("#id1", "Send them now"), {"#id2", "Wait for the engine"}}) {
    EXPECT_EQ(browser.evaluate("document.querySelector('" + std::string(button) + "').innerText"), text);
    const auto at = bounds(button);
    EXPECT_LT(window[0], at[0]);
    EXPECT_LT(window[1], at[1]);
    EXPECT_GT(window[2], at[2]) << button;
    EXPECT_GT(window[3], at[3]);
  }
  open(screens() + "/index.html#10.60s");
  keepPicture("harbour");
}

}

}
