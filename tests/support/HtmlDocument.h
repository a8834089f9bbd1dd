#pragma once
#include <functional>
#include <map>
#include <string>
#include <vector>

/// Pages as a browser understands them: parsed by the rules of HTML5.
namespace html {

struct Node {
  std::string tag; ///< in small letters; empty for text, "?" for an element that HTML doesn't know
  std::map<std::string, std::string> attributes;
  std::string text; ///< of a text
  std::vector<Node> children;

  /// Empty if the element has no such attribute.
  std::string attribute(const std::string& name) const;
};

/// The html element.
Node parse(const std::string& page);
/// All elements of that tag, the node itself included, in the order of the page.
std::vector<const Node*> findAll(const Node& node, const std::string& tag);
/// What the node shows, its texts one behind the other.
std::string textOf(const Node& node);
/// Calls for the node and all below it, in the order of the page.
void visit(const Node& node, const std::function<void(const Node&)>& look);
/// The text without any blanks, line breaks and tabs, for comparisons.
std::string withoutBlanks(std::string text);

}
