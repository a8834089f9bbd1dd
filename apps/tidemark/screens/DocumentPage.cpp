#include "apps/tidemark/screens/DocumentPage.h"

#include "apps/tidemark/screens/Pictures.h"

#include "Rocket/Core/ElementDocument.h"

#include <boost/algorithm/string/replace.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace tidemark::screens {

namespace {

using Rocket::Core::Element;
using Rocket::Core::ElementDocument;

// What the documents' own layout takes for granted. The weakest of all rules: any of the document goes above it.
constexpr std::string_view BASE_STYLES = R"(html { background: #48584f; }
html:has(#over:target) { background: transparent; }
html, body { margin: 0; width: 1280px; height: 720px; overflow: hidden; position: relative; font: 16px sans-serif; color: #ffffff; }
:where(rml-p, rml-h1, rml-h2, rml-h3, rml-h4, rml-h5, rml-h6, rml-ul, rml-ol, rml-li, rml-form, rml-header, rml-footer, rml-section) { display: block; }
:where(img, rml-button, rml-input, rml-select, rml-textarea, rml-video, rml-progress) { display: inline-block; }
:where(rml-title, rml-style, rml-script, rml-link, rml-head) { display: none; }
:where(rml-b, rml-strong) { font-weight: bold; }
:where(rml-i, rml-em) { font-style: italic; }
)";

bool isNameLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || character == '-' || character == '_';
}

bool isPlainName(std::string_view name) { return !name.empty() && std::ranges::all_of(name, isNameLetter); }

// Few elements mean the same here and there, and stand as they are whatever is in them. All others get a name that
// browsers do nothing with: they would close a `p` before a `div`, run a `script`, move what stands in a `table`.
std::string mapTag(const std::string& tag) {
  static constexpr std::array<std::string_view, 6> KEPT = {"body", "html", "div", "span", "img", "br"};
  if (std::ranges::find(KEPT, tag) != KEPT.end()) return tag;
  return isPlainName(tag) ? "rml-" + tag : "rml-unnamed";
}

// Selectors name elements as RML does. A name is one of an element where a part of the selector begins.
std::string mapSelector(std::string_view selector) {
  std::string mapped;
  for (std::size_t at = 0; at < selector.size();) {
    const bool begins = at == 0 || std::string_view(" >+~,(").find(selector[at - 1]) != std::string_view::npos;
    std::size_t end = at;
    while (end < selector.size() && isNameLetter(selector[end]))
      ++end;
    const std::string name(selector.substr(at, end - at));
    if (end == at)
      mapped += selector[end++];
    else
      mapped += begins && std::isalpha(static_cast<unsigned char>(name.front())) ? mapTag(name) : name;
    if (mapped.back() == '[') { // an attribute and its value
      const std::size_t close = std::min(selector.find(']', end), selector.size());
      mapped += selector.substr(end, close - end);
      end = close;
    }
    at = end;
  }
  return mapped;
}

// One rule stands on each line.
std::string mapRules(std::string_view sheet) {
  std::string mapped;
  for (std::size_t at = 0; at < sheet.size();) {
    const std::size_t end = std::min(sheet.find('\n', at), sheet.size());
    const std::string_view rule = sheet.substr(at, end - at);
    const std::size_t open = std::min(rule.find('{'), rule.size());
    mapped += mapSelector(rule.substr(0, open)) + std::string(rule.substr(open)) + "\n";
    at = end + 1;
  }
  return mapped;
}

class PageWriter {
public:
  explicit PageWriter(const ElementDocument& document) : mUrl(document.GetSourceURL()) {}

  std::string attributes(const Element& element) const {
    std::string text;
    for (const auto& [name, value] : element.GetAttributes().GetValues()) {
      if (name == "style" || !isPlainName(name)) continue;
      if (name == "src" && element.GetTagName() == "img") continue;
      const bool isSafe = name == "id" || name == "class" || name == "title" || name == "src";
      text += " " + std::string(isSafe ? "" : "data-") + name + "=\"" + escapeHtml(value) + "\"";
    }
    const std::string source = element.GetAttribute("src");
    if (element.GetTagName() == "img" && !source.empty()) {
      const Picture picture = pictureOf(source, mUrl);
      text += " src=\"" + picture.address + "\"" + (picture.isFrame ? " width=\"64\" height=\"64\"" : "");
    }
    const std::string style = styleOf(element);
    return style.empty() ? text : text + " style=\"" + escapeHtml(style) + "\"";
  }

  void addContent(const Element& element, std::string& page) const {
    for (const Element::Content& content : element.GetContent()) {
      if (!content.element) {
        page += escapeHtml(content.text);
        continue;
      }
      const std::string tag = mapTag(content.element->GetTagName());
      page += "<" + tag + attributes(*content.element) + ">";
      if (tag == "img" || tag == "br") continue;
      addContent(*content.element, page);
      page += "</" + tag + ">";
    }
  }

private:
  std::string styleOf(const Element& element) const {
    std::string text;
    for (const auto& [name, value] : element.GetLocalProperties().GetValues())
      if (isPlainName(name)) text += name + ": " + value + "; ";
    return inlinePictures(text, mUrl);
  }

  std::string mUrl;
};

// No text of a style may end the element that it stands in.
std::string insideStyle(std::string styles) {
  boost::algorithm::replace_all(styles, "<", "\\3c ");
  return styles;
}

}

std::string escapeHtml(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    if (character == '&')
      escaped += "&amp;";
    else if (character == '<')
      escaped += "&lt;";
    else if (character == '>')
      escaped += "&gt;";
    else if (character == '"')
      escaped += "&quot;";
    else
      escaped += character;
  }
  return escaped;
}

std::string documentPage(const ElementDocument& document) {
  const PageWriter writer(document);
  std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                     "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
                     "style-src 'unsafe-inline'\">\n<title>" +
                     escapeHtml(document.GetTitle().empty() ? document.GetSourceURL() : document.GetTitle()) +
                     "</title>\n<style>\n" + std::string(BASE_STYLES) + "</style>\n<style>\n" +
                     insideStyle(inlinePictures(mapRules(document.GetStyleSheet()), document.GetSourceURL())) +
                     "</style>\n</head>\n<body" + writer.attributes(document) + ">\n";
  writer.addContent(document, page);
  return page + "\n<i id=\"over\" hidden></i>\n</body>\n</html>\n";
}

}
