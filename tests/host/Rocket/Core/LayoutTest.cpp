// Style and layout as elements tell of them.
#include "Rocket/Core/Element.h"

#include "host/Rocket/DocumentFixture.h"

namespace {

class LayoutTest : public DocumentTest {
protected:
  void readStyled(const std::string& style, const std::string& body) {
    read("<rml><head><style>" + style + "</style></head><body>" + body + "</body></rml>");
  }
};

TEST_F(LayoutTest, ClassRulesDecideOnVisibility) {
  readStyled(".off { display: none; } .in p.gone { visibility: hidden; }",
             "<div id=\"d\" class=\"in\"><p id=\"p\"/></div>");
  EXPECT_TRUE(element("p").IsVisible());
  element("p").SetClass("gone", true);
  EXPECT_FALSE(element("p").IsVisible());
  EXPECT_TRUE(element("p").IsDisplayed());
  element("d").SetClass("off", true);
  EXPECT_FALSE(element("p").IsDisplayed());
  element("d").SetAttribute("style", "display: block");
  EXPECT_TRUE(element("p").IsDisplayed());
}

TEST_F(LayoutTest, AHiddenDocumentShowsNothing) {
  read("<p id=\"p\"/>");
  document->SetShown(false);
  EXPECT_FALSE(element("p").IsVisible());
  EXPECT_TRUE(element("p").IsDisplayed());
}

TEST_F(LayoutTest, TheMoreSpecialRuleWinsAndTheElementsOwnStyleOverAll) {
  readStyled("#p { width: 30px; } p { width: 10px; } .c { width: 20px; }", "<p id=\"p\" class=\"c\"/>");
  EXPECT_EQ(element("p").GetClientWidth(), 30);
  element("p").SetProperty("width", "40px");
  EXPECT_EQ(element("p").GetClientWidth(), 40);
  element("p").RemoveProperty("width");
  EXPECT_EQ(element("p").GetClientWidth(), 30);
}

TEST_F(LayoutTest, WidthsComeOutInPixels) {
  readStyled("#padded { width: 120px; padding: 5px; border: 3px solid red; margin: 9px; } #half { width: 50%; }"
             "#free { position: absolute; left: 10px; width: 25%; height: 12px; } .inline { display: inline-block; }",
             "<div id=\"padded\"/><div id=\"full\"/><div id=\"half\"><p id=\"quarter\" style=\"width:50%\"/></div>"
             "<div id=\"free\"/><div id=\"shrunk\" class=\"inline\">four</div>"
             "<div id=\"gone\" style=\"display:none;width:9px\"/>");
  EXPECT_EQ(element("padded").GetClientWidth(), 130);
  EXPECT_EQ(element("full").GetClientWidth(), 1280);
  EXPECT_EQ(element("half").GetClientWidth(), 640);
  EXPECT_EQ(element("quarter").GetClientWidth(), 320);
  EXPECT_EQ(element("free").GetClientWidth(), 320);
  EXPECT_EQ(element("free").GetClientHeight(), 12);
  element("free").SetInnerRML(
      "<p id=\"inside\" style=\"width: 50%\"><b id=\"deeper\" style=\"display: block; width: 10%\"/></p>");
  EXPECT_EQ(element("inside").GetClientWidth(), 160);
  EXPECT_EQ(element("deeper").GetClientWidth(), 16);
  EXPECT_EQ(element("shrunk").GetClientWidth(), 32); // four letters, each half as wide as 16 pixels
  EXPECT_EQ(element("gone").GetClientWidth(), 0);
}

TEST_F(LayoutTest, ALetterIsHalfAsWideAsItsFontIsHigh) {
  readStyled("body { font-size: 20px; }", "<span id=\"s\">\xC3\xA4\xC3\xB6</span>");
  EXPECT_EQ(element("s").GetClientWidth(), 20);
  element("s").SetAttribute("style", "font-size: 40px");
  EXPECT_EQ(element("s").GetClientWidth(), 40);
  element("s").SetInnerRML("abc");
  EXPECT_EQ(element("s").GetClientWidth(), 60);
}

TEST_F(LayoutTest, StyleSheetsAreLinkedFromBesideTheDocument) {
  files["gui/look.rcss"] = "p { width: 7px; }";
  files["style/far.rcss"] = "b { display: none; }";
  read("<rml><head><link type=\"text/rcss\" href=\"look.rcss\"/><link type=\"text/rcss\" href=\"../style/far.rcss\"/>"
       "<link type=\"text/rcss\" href=\"missing.rcss\"/></head><body><p id=\"p\"/><b id=\"b\"/></body></rml>");
  EXPECT_EQ(element("p").GetClientWidth(), 7);
  EXPECT_FALSE(element("b").IsDisplayed());
}

TEST_F(LayoutTest, NamesInSelectorsMayHaveCapitals) {
  readStyled("#LetterBox { width: 11px; } .MixedCase { width: 12px; } p[Onclick=Go] { width: 13px; }",
             "<p id=\"LetterBox\"/><p id=\"m\" class=\"MixedCase\"/><p id=\"a\" Onclick=\"Go\"/><body id=\"b\"><p "
             "id=\"in\"/></body>");
  EXPECT_EQ(element("LetterBox").GetClientWidth(), 11);
  EXPECT_EQ(element("m").GetClientWidth(), 12);
  EXPECT_EQ(element("a").GetClientWidth(), 13);
  EXPECT_EQ(element("in").GetClientWidth(), 1280); // a body inside the body is an element like others
}

TEST_F(LayoutTest, StatesOfElementsAreStyled) {
  readStyled("p { width: 1px; } p:hover { width: 2px; }", "<p id=\"p\"/>");
  EXPECT_EQ(element("p").GetClientWidth(), 1);
  element("p").SetPseudoClass("hover", true);
  EXPECT_EQ(element("p").GetClientWidth(), 2);
}

TEST_F(LayoutTest, WhatIsNoRuleIsPassedOver) {
  readStyled("} { ; @media all { p { width: 9px; } } /* p { width: 8px; } */ p { width: 5px; bad } @x; q { } p::before "
             "{ content: 'x' } i {",
             "<p id=\"p\"/>");
  EXPECT_EQ(element("p").GetClientWidth(), 5);
}

TEST_F(LayoutTest, TablesAreBlocks) {
  for (const char* display : {"table", "table-row", "table-cell", "inline-table", "table-caption", "list-item"}) {
    readStyled("div { display: " + std::string(display) + "; } p { display: table-cell; width: 50px; }",
               "<div id=\"d\"><p id=\"p\">x</p>text</div>");
    EXPECT_EQ(element("p").GetClientWidth(), 50) << display;
  }
}

TEST_F(LayoutTest, WhatTakesTooMuchWorkIsLoggedAndHasNoSizes) {
  std::string rules, body;
  for (int i = 0; i < 3000; ++i)
    rules += "div div div p.x" + std::to_string(i) + " { width: 1px; }";
  for (int i = 0; i < 5000; ++i)
    body += "<div/>";
  readStyled(rules, body + "<p id=\"p\" style=\"width: 3px\"/><p id=\"off\" style=\"display: none\"/>");
  EXPECT_EQ(element("p").GetClientWidth(), 0);
  EXPECT_TRUE(element("p").IsDisplayed());
  EXPECT_FALSE(element("off").IsDisplayed());
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_NE(warnings[0].find("takes too much work"), std::string::npos);
}

TEST_F(LayoutTest, DocumentsThatWouldTakeForEverEnd) {
  std::string open, close;
  for (int i = 0; i < 60; ++i) {
    open += "<div class=\"s\"><b>x</b>";
    close += "</div>";
  }
  // Each level of these is laid out twice by the one around it.
  for (const char* style :
       {"display: inline-block", "float: left", "position: absolute", "position: relative; float: right"}) {
    readStyled(".s { " + std::string(style) + "; }", open + "<p id=\"p\"/>" + close);
    element("p").GetClientWidth();
  }
  std::string selector = "x";
  for (int i = 0; i < 40; ++i)
    selector += " div";
  readStyled(selector + " p { width: 1px; } " + std::string(200'000, ':') + "{ width: 2px }",
             open + "<p id=\"p\"/>" + close);
  element("p").GetClientWidth();
  readStyled("p { width: 99999999999999999999px; height: -999999999em; width: var(--a); --a: var(--a); }",
             "<p id=\"p\" style=\"font-size: 99999999999px; left: 999999999%\">x</p>");
  EXPECT_EQ(element("p").GetClientWidth(), 1280);
}

}
