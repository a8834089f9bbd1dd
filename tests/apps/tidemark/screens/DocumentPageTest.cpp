#include "apps/tidemark/screens/DocumentPage.h"

#include "Rocket/Core/ElementDocument.h"

#include <gtest/gtest.h>

namespace tidemark::screens {

namespace {

std::string page(const std::string& style, const std::string& body) {
  const auto document = Rocket::Core::ElementDocument::Read(
      "<rml><head><style><![CDATA[" + style + "]]></style></head><body>" + body + "</body></rml>", "gui/a.rml");
  return document ? documentPage(*document) : "no document";
}

void expectIn(const std::string& text, const std::string& part) {
  EXPECT_NE(text.find(part), std::string::npos) << part << " is missing in\n" << text;
}
void expectNotIn(const std::string& text, const std::string& part) {
  EXPECT_EQ(text.find(part), std::string::npos) << part << " stands in\n" << text;
}

TEST(DocumentPage, ElementsThatHtmlWouldTreatInItsOwnWayGetNamesOfTheirOwn) {
  const std::string html = page("", "<p>a<div>b</div></p><table><x-y>c</x-y></table><br/><img/>");
  expectIn(html, "<rml-p>a<div>b</div></rml-p><rml-table><rml-x-y>c</rml-x-y></rml-table><br><img>");
}

TEST(DocumentPage, SelectorsNameElementsAsThePageDoes) {
  const std::string html =
      page("p.late > li:hover, body div#p-q b { color: red } video[src=p]{color:blue} .p .c1:not(p){color:green}", "");
  expectIn(html, "rml-p.late > rml-li:hover, body div#p-q rml-b { color: red; }");
  expectIn(html, "rml-video[src=p] { color: blue; }");
  expectIn(html, ".p .c1:not(rml-p) { color: green; }");
}

TEST(DocumentPage, NoTextOfAnAuthorBecomesCode) {
  const std::string html = page("p { content: '</style><script>alert(1)</script>' }",
                                "<p id=\"&quot;&gt;&lt;script&gt;\" onclick=\"alert(1)\" href=\"javascript:x\" "
                                "style=\"background: url('&lt;/style>&lt;script>')\">&lt;script&gt;</p><script "
                                "src=\"http://example.org\">x</script>");
  expectNotIn(html, "<script");
  expectNotIn(html, " onclick=");
  expectNotIn(html, " href=");
  expectIn(html, "data-onclick=\"alert(1)\"");
  expectIn(html, "&lt;script&gt;</rml-p>");
  expectIn(html, "default-src 'none'");
}

TEST(DocumentPage, PicturesThatAreNotThereAreFramesOrNothing) {
  const std::string html = page(".a { background-image: url(../none.png); width: 1px }", "<img src=\"x/none.png\"/>");
  expectIn(html, "background-image: none;");
  expectIn(html, "<img src=\"data:image/svg+xml;base64,");
  expectNotIn(html, "none.png");
}

TEST(DocumentPage, LocalPropertiesStandInTheStyle) {
  const std::string html = page("", "<div style=\"width: 3px; width: 4px; color: &quot;red&quot;\"/>");
  expectIn(html, "<div style=\"width: 4px; color: &quot;red&quot;; \"></div>");
}

}

}
