#include "RmlReader.h"

#include <sstream>

namespace Rocket::Core {

namespace {

void writeContent(const Element& element, pugi::xml_node parent) {
  for (const Element::Content& content : element.GetContent()) {
    if (!content.element) {
      parent.append_child(pugi::node_pcdata).set_value(content.text.c_str());
      continue;
    }
    pugi::xml_node node = parent.append_child(content.element->GetTagName().c_str());
    for (const auto& [name, value] : content.element->GetAttributes().GetValues())
      node.append_attribute(name.c_str()).set_value(value.c_str());
    writeContent(*content.element, node);
  }
}

}

std::string writeInnerRml(const Element& element) {
  // An element of its own: texts at the top of a document wouldn't be escaped.
  pugi::xml_document xml;
  const pugi::xml_node root = xml.append_child("rml");
  writeContent(element, root);
  std::ostringstream rml;
  for (const pugi::xml_node& node : root.children())
    node.print(rml, "", pugi::format_raw, pugi::encoding_utf8);
  return rml.str();
}

}
