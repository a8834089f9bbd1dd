#include "RmlReader.h"

#include "Limits.h"
#include "Rocket/Core/SystemInterface.h"
#include "StyleSheet.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/replace.hpp>

#include <algorithm>
#include <filesystem>

namespace Rocket::Core {

namespace {

constexpr unsigned int PARSE_OPTIONS = pugi::parse_default | pugi::parse_fragment | pugi::parse_ws_pcdata;

RmlFault faultAt(std::string_view rml, std::size_t offset, std::string reason) {
  const std::string_view before = rml.substr(0, std::min(offset, rml.size()));
  const std::size_t lineStart = before.rfind('\n');
  const auto column = lineStart == std::string_view::npos ? before.size() : before.size() - lineStart - 1;
  return {static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1, static_cast<int>(column) + 1,
          std::move(reason)};
}

struct Measures : pugi::xml_tree_walker {
  std::size_t elements = 0;
  int depth = 0;
  bool for_each(pugi::xml_node& node) override {
    if (node.type() != pugi::node_element) return true;
    ++elements;
    this->depth = std::max(this->depth, xml_tree_walker::depth() + 1);
    return true;
  }
};

// The one entity that RML knows beside those of XML; it is as long as the number that stands for it, so that columns
// stay right.
std::string withNumberedEntities(std::string_view rml) {
  return boost::algorithm::replace_all_copy(std::string(rml), "&nbsp;", "&#160;");
}

bool isText(const pugi::xml_node& node) { return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata; }

}

bool readRml(std::string_view rml, RmlText& text) {
  if (rml.size() > MAXIMUM_RML_SIZE) {
    text.fault = {1, 1, "the text is longer than " + std::to_string(MAXIMUM_RML_SIZE) + " bytes"};
    return false;
  }
  if (const std::size_t zero = rml.find('\0'); zero != std::string_view::npos) {
    text.fault = faultAt(rml, zero, "a zero byte");
    return false;
  }
  const std::string numbered = withNumberedEntities(rml);
  const pugi::xml_parse_result result =
      text.xml.load_buffer(numbered.data(), numbered.size(), PARSE_OPTIONS, pugi::encoding_utf8);
  if (!result) {
    text.fault =
        faultAt(rml, static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)), result.description());
    return false;
  }
  Measures measures;
  text.xml.traverse(measures);
  text.elements = measures.elements;
  text.depth = measures.depth;
  if (text.elements > MAXIMUM_ELEMENTS)
    text.fault = {1, 1, "more than " + std::to_string(MAXIMUM_ELEMENTS) + " elements"};
  else if (text.depth > MAXIMUM_DEPTH)
    text.fault = {1, 1, "elements stand more than " + std::to_string(MAXIMUM_DEPTH) + " deep in each other"};
  return text.fault.reason.empty();
}

void RmlBuilder::readAttributes(const pugi::xml_node& node, Element& element) {
  for (const pugi::xml_attribute& attribute : node.attributes())
    if (!element.HasAttribute(attribute.name())) element.SetAttribute(attribute.name(), String(attribute.value()));
}

std::vector<Element::Content> RmlBuilder::makeContent(const pugi::xml_node& parent) {
  std::vector<Element::Content> content;
  for (const pugi::xml_node& node : parent.children()) {
    if (isText(node)) content.push_back({nullptr, node.value()});
    if (node.type() != pugi::node_element) continue;
    auto element = std::make_shared<Element>(boost::algorithm::to_lower_copy(std::string(node.name())));
    readAttributes(node, *element);
    element->Adopt(makeContent(node));
    content.push_back({std::move(element), {}});
  }
  return content;
}

void RmlBuilder::readHead(ElementDocument& document, const pugi::xml_node& head) {
  for (const pugi::xml_node& node : head.children("title"))
    document.mTitle = String(node.child_value());
  for (const pugi::xml_node& node : head.children()) {
    const std::string_view name = node.name(), type = node.attribute("type").value();
    if (name == "style") {
      for (const pugi::xml_node& text : node.children())
        if (isText(text)) document.mStyleSheet += std::string(text.value()) + "\n";
    } else if (name == "link" && (type == "text/rcss" || type == "text/css")) {
      SystemInterface* system = GetSystemInterface();
      const String reference = node.attribute("href").value();
      const std::filesystem::path source(std::string(document.mSourceUrl));
      const String beside = (source.parent_path() / std::string(reference)).lexically_normal().generic_string();
      String sheet;
      if (system && (system->LoadFile(beside, sheet) || system->LoadFile(reference, sheet)))
        document.mStyleSheet += sheet + "\n";
    }
  }
}

void RmlBuilder::fill(ElementDocument& document, const pugi::xml_document& xml, const String& sourceUrl) {
  document.mSourceUrl = sourceUrl;
  const pugi::xml_node root = xml.child("rml");
  if (!root) {
    document.Adopt(makeContent(xml));
    return;
  }
  readHead(document, root.child("head"));
  document.mStyleSheet = tidyStyleSheet(document.mStyleSheet);
  const pugi::xml_node body = root.child("body");
  readAttributes(body, document);
  document.Adopt(makeContent(body));
}

}
