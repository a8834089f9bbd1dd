#include "tests/support/HtmlDocument.h"

#include <gumbo.h>

#include <memory>
#include <span>

namespace html {

namespace {

template <class Item> std::span<Item* const> itemsOf(const GumboVector& vector) {
  return {reinterpret_cast<Item* const*>(vector.data), vector.length};
}

Node convert(const GumboNode& node) {
  Node result;
  if (node.type != GUMBO_NODE_ELEMENT) {
    if (node.type != GUMBO_NODE_COMMENT && node.type != GUMBO_NODE_DOCUMENT) result.text = node.v.text.text;
    return result;
  }
  const GumboElement& element = node.v.element;
  result.tag = element.tag == GUMBO_TAG_UNKNOWN ? "?" : gumbo_normalized_tagname(element.tag);
  for (const GumboAttribute* attribute : itemsOf<GumboAttribute>(element.attributes))
    result.attributes.emplace(attribute->name, attribute->value);
  for (const GumboNode* child : itemsOf<GumboNode>(element.children))
    result.children.push_back(convert(*child));
  return result;
}

}

std::string Node::attribute(const std::string& name) const {
  const auto found = attributes.find(name);
  return found == attributes.end() ? "" : found->second;
}

Node parse(const std::string& page) {
  const std::unique_ptr<GumboOutput, void (*)(GumboOutput*)> output(
      gumbo_parse_with_options(&kGumboDefaultOptions, page.data(), page.size()),
      [](GumboOutput* parsed) { gumbo_destroy_output(&kGumboDefaultOptions, parsed); });
  return convert(*output->root);
}

void visit(const Node& node, const std::function<void(const Node&)>& look) {
  look(node);
  for (const Node& child : node.children)
    visit(child, look);
}

std::vector<const Node*> findAll(const Node& node, const std::string& tag) {
  std::vector<const Node*> found;
  visit(node, [&](const Node& each) {
    if (each.tag == tag) found.push_back(&each);
  });
  return found;
}

std::string textOf(const Node& node) {
  std::string text;
  visit(node, [&](const Node& each) { text += each.text; });
  return text;
}

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; });
  return text;
}

}
