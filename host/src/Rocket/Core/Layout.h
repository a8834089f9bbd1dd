#pragma once
#include "Rocket/Core/ElementDocument.h"

#include <memory>

namespace Rocket::Core {

struct LayoutSize {
  float width = 0;
  float height = 0;
};

/// Style and places of a document's elements as they were when it was made.
class Layout {
public:
  explicit Layout(const ElementDocument& document);
  ~Layout();

  /// False for what style hides, itself or by a parent.
  bool isDrawn(const Element& element) const;
  /// Inside the borders, in pixels.
  LayoutSize getClientSize(const Element& element) const;
};

}
