// The reference page as its readers have it before them: in Chromium, wide and narrow, with the keyboard.
// TIDEMARK_SCREENSHOTS=FOLDER keeps the pictures for people.
#include "tests/apps/tidemark/ProgramFixture.h"
#include "tests/support/Browser.h"

#include <cstdlib>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

constexpr int WIDE = 1280;
constexpr int NARROW = 420;
constexpr int HEIGHT = 900;

class ReferencePageInABrowser : public Program {
protected:
  ReferencePageInABrowser() : browser(folder() + "/profile") {
    const Outcome outcome = run({"docs", folder() + "/docs"});
    EXPECT_EQ(outcome.code, 0) << outcome.output;
  }

  std::string url() const { return "file://" + folder() + "/docs/reference.html"; }
  void open(int width = WIDE) {
    browser.resize(width, HEIGHT);
    browser.open(url());
  }
  /// Names of the entries in the order in which they are shown.
  std::vector<std::string> shown() {
    return browser.evaluate("[...document.querySelectorAll('#entries article')].map((a) => a.id)")
        .get<std::vector<std::string>>();
  }
  std::size_t all() { return shown().size(); }
  std::string count() { return browser.evaluate("document.getElementById('count').value"); }
  std::string focused() { return browser.evaluate("document.activeElement.id || document.activeElement.textContent"); }
  std::string here() { return browser.evaluate("document.querySelector('article.here')?.id ?? ''"); }

  /// Takes a picture and has a look at its head: a PNG of the view's size.
  std::string photograph(const std::string& name, int width) {
    const std::string picture = browser.screenshot();
    EXPECT_TRUE(picture.starts_with("\x89PNG"));
    const auto number = [&](std::size_t at) {
      int value = 0;
      for (std::size_t i = at; i < at + 4; ++i)
        value = value << 8 | static_cast<unsigned char>(picture.at(i));
      return value;
    };
    EXPECT_EQ(number(16), width);
    EXPECT_EQ(number(20), HEIGHT);
    if (const char* kept = std::getenv("TIDEMARK_SCREENSHOTS"))
      std::ofstream(fs::path(kept) / (name + ".png"), std::ios::binary) << picture;
    return picture;
  }

  Browser browser;
};

class ReferencePageAtAWidth : public ReferencePageInABrowser, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Both, ReferencePageAtAWidth, testing::Values(WIDE, NARROW),
                         [](const auto& info) { return info.param == WIDE ? "Wide" : "Narrow"; });

TEST_P(ReferencePageAtAWidth, TheFilterNarrowsAsOneTypes) {
  const std::string size = GetParam() == WIDE ? "wide" : "narrow";
  open(GetParam());
  const std::size_t total = all();
  EXPECT_EQ(count(), std::to_string(total));
  const std::string before = photograph(size, GetParam());
  browser.press("/");
  EXPECT_EQ(focused(), "filter");
  std::size_t last = total;
  for (const char* letters : {"set", "v", "ariabler"}) {
    browser.type(letters);
    EXPECT_LT(all(), last) << letters;
    EXPECT_GT(all(), 0u) << letters;
    last = all();
  }
  EXPECT_EQ(shown().front(), "SetVariableRandom");
  EXPECT_EQ(count(), std::to_string(last) + " of " + std::to_string(total));
  const std::string after = photograph(size + "-filtered", GetParam());
  EXPECT_NE(after, before);
  EXPECT_EQ(browser.evaluate("document.querySelector('article mark').textContent"), "SetVariableR");
}

TEST_P(ReferencePageAtAWidth, NothingIsCutOffOrLiesAside) {
  open(GetParam());
  EXPECT_LE(browser.evaluate("document.documentElement.scrollWidth").get<int>(), GetParam());
  // Every visible text keeps inside the view.
  EXPECT_EQ(browser.evaluate("[...document.querySelectorAll('#bar *, article *')].filter((e) => {"
                             "  const r = e.getBoundingClientRect();"
                             "  return r.width > 0 && (r.left < 0 || r.right > innerWidth + 0.5); })"
                             ".map((e) => e.tagName + ' ' + e.textContent.slice(0, 40))"),
            nlohmann::json::array());
}

TEST_P(ReferencePageAtAWidth, TheContentsLeadToAnEntry) {
  open(GetParam());
  const char* isVisible = "document.querySelector('#contents li a').getClientRects().length > 0";
  EXPECT_EQ(browser.evaluate(isVisible), GetParam() == WIDE);
  if (GetParam() == NARROW) {
    browser.evaluate("document.getElementById('show-contents').click()");
    EXPECT_EQ(browser.evaluate(isVisible), true);
    photograph("narrow-contents", GetParam());
  }
  browser.evaluate("document.querySelector('#contents a[href=\"#Timer\"]').click()");
  EXPECT_EQ(browser.evaluate("location.hash"), "#Timer");
  EXPECT_EQ(browser.evaluate("new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(() => {"
                             "  const top = document.getElementById('Timer').getBoundingClientRect().top;"
                             "  done(top >= document.getElementById('bar').offsetHeight && top < 300); })))"),
            true);
  EXPECT_EQ(browser.evaluate(isVisible), GetParam() == WIDE);
}

TEST_F(ReferencePageInABrowser, NamesThatBeginWithTheTextComeFirst) {
  open();
  browser.type("/");
  browser.type("timer");
  ASSERT_FALSE(shown().empty());
  EXPECT_EQ(shown().front(), "Timer");
  EXPECT_EQ(here(), "Timer");
}

TEST_F(ReferencePageInABrowser, WordsAreLookedForInTextsRolesAndAcceptedWordsToo) {
  open();
  browser.type("/");
  browser.type("door_closing");
  EXPECT_EQ(shown(), std::vector<std::string>{"DoorHasState"});
}

TEST_F(ReferencePageInABrowser, ItTellsWhenNothingIsFound) {
  open();
  browser.type("/");
  browser.type("zzzz");
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(count(),
            "0 of " + std::to_string(browser.evaluate("document.querySelectorAll('#contents li').length").get<int>()));
  EXPECT_EQ(browser.evaluate("document.querySelector('#entries').textContent.includes('Fewer letters')"), true);
}

TEST_F(ReferencePageInABrowser, KeysWalkGoAndClear) {
  open();
  const std::size_t total = all();
  browser.press("/");
  browser.type("list");
  const std::vector<std::string> found = shown();
  ASSERT_GT(found.size(), 3u);
  browser.press("ArrowDown");
  browser.press("ArrowDown");
  browser.press("ArrowUp");
  EXPECT_EQ(here(), found[1]);
  EXPECT_EQ(focused(), "filter") << "one can type on";
  browser.press("Enter");
  EXPECT_EQ(browser.evaluate("location.hash"), "#" + found[1]);
  EXPECT_EQ(focused(), found[1]);
  browser.type("j");
  EXPECT_EQ(here(), found[2]);
  browser.type("k");
  EXPECT_EQ(here(), found[1]);
  browser.press("Escape");
  EXPECT_EQ(all(), total);
  EXPECT_EQ(browser.evaluate("document.getElementById('filter').value"), "");
}

TEST_F(ReferencePageInABrowser, CopiesTheLineWithItsDefaults) {
  open();
  browser.type("/");
  browser.type("setvariable");
  browser.press("Enter");
  browser.type("c");
  const std::string said = browser.evaluate(
      "new Promise((done) => setTimeout(() => done(document.querySelector('article.here .copy').textContent), 100))");
  EXPECT_TRUE(said == "Copied" || said == "Selected") << said;
  EXPECT_EQ(browser.evaluate("document.querySelector('article.here .copy').dataset.line"),
            "SetVariable(\"var\",\"0\");");
  if (said == "Selected") {
    EXPECT_EQ(browser.evaluate("getSelection().toString()"), "SetVariable(\"var\",\"0\");");
  }
}

TEST_F(ReferencePageInABrowser, KindsCanBeShownAlone) {
  open();
  const std::size_t total = all();
  browser.evaluate("document.querySelector('input[value=condition]').click()");
  const std::size_t conditions = all();
  EXPECT_EQ(browser.evaluate("document.querySelectorAll('#entries article:not(.condition)').length"), 0);
  EXPECT_EQ(browser.evaluate("[...document.querySelectorAll('#entries h2')].filter("
                             "(h) => !h.nextElementSibling?.matches('article')).length"),
            0)
      << "no heading stands alone";
  browser.evaluate("document.querySelector('input[value=effect]').click()");
  EXPECT_EQ(conditions + all(), total);
}

TEST_F(ReferencePageInABrowser, AReloadKeepsTheFilterAndALinkTakesItAway) {
  open();
  const std::size_t total = all();
  browser.type("/");
  browser.type("timer");
  const std::vector<std::string> found = shown();
  browser.reload();
  EXPECT_EQ(shown(), found);
  browser.evaluate("location.hash = '#DoorHasState'");
  EXPECT_EQ(browser.evaluate("new Promise((done) => setTimeout(() => "
                             "done(document.getElementById('DoorHasState') !== null), 100))"),
            true);
  EXPECT_EQ(all(), total);
  EXPECT_EQ(here(), "DoorHasState");
}

/// The worst contrast of texts with what is behind them, by the formula of WCAG 2.
const char* const WORST_CONTRAST = R"js((() => {
  const parse = (text) => text.match(/[\d.]+/g).map(Number);
  const light = ([r, g, b]) => [r, g, b].map((v) => v / 255).map((v) => v <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4)
    .reduce((sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0);
  const behind = (element) => {
    for (let e = element; e; e = e.parentElement) {
      const colour = parse(getComputedStyle(e).backgroundColor);
      if (colour.length < 4 || colour[3] > 0) return colour;
    }
  };
  let worst = 21;
  for (const element of document.querySelectorAll('#bar *, #contents *, article *')) {
    if (![...element.childNodes].some((node) => node.nodeType === 3 && node.data.trim())) continue;
    const a = light(parse(getComputedStyle(element).color)), b = light(behind(element));
    worst = Math.min(worst, (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05));
  }
  return worst;
})())js";

TEST_F(ReferencePageInABrowser, IsLightAndDarkAndEasyToReadInBoth) {
  open();
  std::string backgrounds[2];
  for (const char* scheme : {"light", "dark"}) {
    browser.prefer(scheme);
    backgrounds[*scheme == 'd'] = browser.evaluate("getComputedStyle(document.body).backgroundColor");
    photograph(scheme, WIDE);
    EXPECT_GE(browser.evaluate(WORST_CONTRAST).get<double>(), 4.5) << scheme;
  }
  EXPECT_NE(backgrounds[0], backgrounds[1]);
}

TEST_F(ReferencePageInABrowser, AsksForNothingButItself) {
  open();
  browser.type("/");
  browser.type("timer");
  browser.press("Enter");
  EXPECT_EQ(browser.requests(), std::vector<std::string>{url()});
}

}

}
