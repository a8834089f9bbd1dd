#include "Rocket/Core/Element.h"

#include "host/Rocket/DocumentFixture.h"

namespace {

using ElementTest = DocumentTest;

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

TEST_F(ElementTest, AWholeDocumentIsItsBody) {
  read("<rml><head><title>Desk</title></head><body id=\"b\" class=\"wide\"><p id=\"p\">text</p></body></rml>");
  EXPECT_EQ(document->GetTitle(), "Desk");
  EXPECT_EQ(document->GetSourceURL(), "gui/test.rml");
  EXPECT_EQ(document->GetTagName(), "body");
  EXPECT_TRUE(document->IsClassSet("wide"));
  EXPECT_EQ(document->GetInnerRML(), "<p id=\"p\">text</p>");
}

TEST_F(ElementTest, AFragmentStandsInABody) {
  read("some <b>text</b>");
  EXPECT_EQ(document->GetInnerRML(), "some <b>text</b>");
}

TEST_F(ElementTest, AttributesKeepTheirOrder) {
  read("<p id=\"p\" z=\"1\" a=\"2\"/>");
  element("p").SetAttribute("m", "3");
  element("p").SetAttribute("z", 4.5f);
  EXPECT_EQ(document->GetInnerRML(), "<p id=\"p\" z=\"4.5\" a=\"2\" m=\"3\"/>");
  element("p").RemoveAttribute("a");
  EXPECT_FALSE(element("p").HasAttribute("a"));
  EXPECT_EQ(element("p").GetNumAttributes(), 3);
  EXPECT_EQ(element("p").GetAttribute("a", "none"), "none");
}

TEST_F(ElementTest, SettingStyleAddsToTheLocalProperties) {
  read("<p id=\"p\" style=\"color: red; width: 10px\"/>");
  element("p").SetAttribute("style", "display: none;");
  element("p").SetAttribute("style", "Width : 20px ; background: url('a;b') ; broken; : x; empty: ;");
  EXPECT_EQ(*element("p").GetLocalProperty("color"), "red");
  EXPECT_EQ(*element("p").GetLocalProperty("display"), "none");
  EXPECT_EQ(*element("p").GetLocalProperty("width"), "20px");
  EXPECT_EQ(*element("p").GetLocalProperty("background"), "url('a;b')");
  EXPECT_EQ(element("p").GetLocalProperties().Size(), 4u);
  EXPECT_EQ(element("p").GetAttribute("style"),
            "Width : 20px ; background: url('a;b') ; broken; : x; empty: ;"); // the text is that of the last one
  element("p").RemoveProperty("width");
  EXPECT_EQ(element("p").GetLocalProperty("width"), nullptr);
}

TEST_F(ElementTest, ClassesAreSetAndTakenAway) {
  read("<p id=\"p\" class=\"a  b\"/>");
  element("p").SetClass("c", true);
  element("p").SetClass("a", false);
  element("p").SetClass("b", true);
  EXPECT_EQ(element("p").GetClassNames(), "b c");
  EXPECT_FALSE(element("p").IsClassSet("a"));
  EXPECT_TRUE(element("p").IsClassSet("c"));
}

TEST_F(ElementTest, ANameWithBlanksIsSeveralClasses) {
  read("<p id=\"p\" class=\"b\"/>");
  for (int i = 0; i < 3; ++i)
    element("p").SetClass(" a b ", true);
  EXPECT_EQ(element("p").GetClassNames(), "b a");
  element("p").SetClass("a c", false);
  element("p").SetClass(" ", true);
  EXPECT_EQ(element("p").GetClassNames(), "b");
}

TEST_F(ElementTest, EntitiesAreDecodedAndWrittenAgain) {
  read("<p id=\"p\" title=\"&quot;&lt;\">a &lt; b &amp; c&#33;&nbsp;&amp;lt;</p>");
  EXPECT_EQ(element("p").GetText(), "a < b & c!\xC2\xA0&lt;");
  EXPECT_EQ(element("p").GetAttribute("title"), "\"<");
  EXPECT_EQ(document->GetInnerRML(), "<p id=\"p\" title=\"&quot;&lt;\">a &lt; b &amp; c!\xC2\xA0&amp;lt;</p>");
}

TEST_F(ElementTest, BlanksStay) {
  read("<p id=\"p\"> a <b> </b>\n<i>x</i> </p>");
  EXPECT_EQ(element("p").GetText(), " a  \nx ");
  EXPECT_EQ(element("p").GetInnerRML(), " a <b> </b>\n<i>x</i> ");
}

TEST_F(ElementTest, ChildrenAreElements) {
  read("<p id=\"p\">one<br/>two<I>three</I></p>");
  EXPECT_EQ(element("p").GetNumChildren(), 2);
  EXPECT_EQ(element("p").GetChild(1)->GetTagName(), "i");
  EXPECT_EQ(element("p").GetChild(1)->GetParentNode(), &element("p"));
  EXPECT_EQ(element("p").GetChild(2), nullptr);
  EXPECT_EQ(element("p").GetChild(-1), nullptr);
  EXPECT_EQ(element("p").GetOwnerDocument(), document.get());
}

TEST_F(ElementTest, TheFirstElementOfAnIdIsFound) {
  read("<div><p id=\"x\">1</p></div><p id=\"x\">2</p><p id=\"\">3</p>");
  EXPECT_EQ(document->GetElementById("x")->GetText(), "1");
  EXPECT_EQ(document->GetElementById(""), nullptr);
  EXPECT_EQ(document->GetElementById("y"), nullptr);
}

TEST_F(ElementTest, InnerRmlIsReplaced) {
  read("<div id=\"d\"><p id=\"old\"/></div>");
  const std::shared_ptr<Rocket::Core::Element> old = element("old").shared_from_this();
  EXPECT_TRUE(element("d").SetInnerRML("plain <b id=\"new\">bold</b>"));
  EXPECT_EQ(element("d").GetText(), "plain bold");
  EXPECT_EQ(document->GetElementById("old"), nullptr);
  EXPECT_EQ(old->GetParentNode(), nullptr); // those who hold it may still ask it
  EXPECT_EQ(old->GetOwnerDocument(), nullptr);
  EXPECT_EQ(old->GetClientWidth(), 0);
  EXPECT_TRUE(element("d").SetInnerRML(""));
  EXPECT_EQ(element("d").GetInnerRML(), "");
}

TEST_F(ElementTest, WhatIsNoRmlLeavesWhatWasThereAndIsToldWithItsPlace) {
  read("<div id=\"d\">before</div>");
  EXPECT_FALSE(element("d").SetInnerRML("line\n <b>open"));
  EXPECT_EQ(element("d").GetText(), "before");
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_NE(warnings[0].find("\"d\" can't be read, line 2, column"), std::string::npos) << warnings[0];
  EXPECT_FALSE(element("d").SetInnerRML("a < b"));
  EXPECT_FALSE(element("d").SetInnerRML("<p a=1/>"));
  EXPECT_FALSE(element("d").SetInnerRML("</div>"));
  EXPECT_FALSE(element("d").SetInnerRML(std::string("a\0b", 3)));
  EXPECT_EQ(warnings.size(), 5u);
  EXPECT_EQ(element("d").GetText(), "before");
}

TEST_F(ElementTest, TheColumnIsThatOfTheFault) {
  Rocket::Core::RmlFault fault;
  EXPECT_FALSE(Rocket::Core::IsReadable("&nbsp;<p>\n12<q x></q></p>", &fault));
  EXPECT_EQ(fault.line, 2);
  EXPECT_EQ(fault.column, 8);
  EXPECT_FALSE(fault.reason.empty());
  EXPECT_TRUE(Rocket::Core::IsReadable("fine<br/>"));
}

TEST_F(ElementTest, LimitsOfDocumentsAreKept) {
  read("<div id=\"d\"/>");
  EXPECT_FALSE(element("d").SetInnerRML(repeated("<p>", 100'000) + repeated("</p>", 100'000)));
  EXPECT_TRUE(element("d").SetInnerRML(repeated("<p>", 62) + "<b id=\"deep\"/>" + repeated("</p>", 62)));
  EXPECT_FALSE(element("deep").SetInnerRML("<p/>"));
  EXPECT_FALSE(element("d").SetInnerRML(repeated("<p/>", 30'000)));
  EXPECT_TRUE(element("d").SetInnerRML(repeated("<p/>", 15'000) + "<b id=\"more\"/>"));
  EXPECT_FALSE(element("more").SetInnerRML(repeated("<p/>", 6'000)));
  EXPECT_TRUE(element("d").SetInnerRML(repeated("<p/>", 15'000))); // what it replaces doesn't count
  EXPECT_FALSE(element("d").SetInnerRML(std::string(5u << 20, 'x')));
  for (int i = 0; i < 300; ++i)
    element("d").SetAttribute("a" + std::to_string(i), "");
  EXPECT_EQ(element("d").GetNumAttributes(), 256);
}

TEST_F(ElementTest, ADocumentThatCantBeReadIsNone) {
  EXPECT_EQ(Rocket::Core::ElementDocument::Read("<rml><body></rml>", "gui/bad.rml"), nullptr);
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_EQ(warnings[0].find("\"gui/bad.rml\" can't be read, line 1, column"), 0u) << warnings[0];
}

}
