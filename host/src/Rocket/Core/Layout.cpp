#include "Layout.h"

#include <cstdlib>

namespace Rocket::Core {

Layout::Layout(const ElementDocument& /*document*/) {}

Layout::~Layout() = default;

bool Layout::isDrawn(const Element& element) const {
  const String* display = element.GetLocalProperty("display");
  if (display && *display == "none") return false;
  return !element.GetParentNode() || isDrawn(*element.GetParentNode());
}

LayoutSize Layout::getClientSize(const Element& element) const {
  const String* width = element.GetLocalProperty("width");
  return {width ? std::strtof(width->c_str(), nullptr) : 0, 0};
}

}
