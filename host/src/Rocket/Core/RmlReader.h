#pragma once
#include "Rocket/Core/ElementDocument.h"

#include <pugixml.hpp>

#include <string_view>

namespace Rocket::Core {

/// What an RML text holds, or why it holds nothing.
struct RmlText {
  pugi::xml_document xml;
  std::size_t elements = 0;
  int depth = 0; ///< elements inside each other
  RmlFault fault;
};
/// False if it can't be read or is beyond the limits of documents; `fault` tells why.
bool readRml(std::string_view rml, RmlText& text);

/// Makes elements of what was read.
class RmlBuilder {
public:
  static std::vector<Element::Content> makeContent(const pugi::xml_node& parent);
  static void readAttributes(const pugi::xml_node& node, Element& element);
  /// Of a whole document or of what stands inside a body.
  static void fill(ElementDocument& document, const pugi::xml_document& xml, const String& sourceUrl);

private:
  static void readHead(ElementDocument& document, const pugi::xml_node& head);
};

/// Inner RML of an element.
std::string writeInnerRml(const Element& element);

}
