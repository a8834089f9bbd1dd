#pragma once
#include "Rocket/Core/ElementDocument.h"

#include <memory>

namespace Rocket::Core {

/// Pixels of the window that documents are laid out in.
constexpr int VIEW_WIDTH = 1280;
constexpr int VIEW_HEIGHT = 720;

struct LayoutSize {
  float width = 0;
  float height = 0;
};

/// Style and places of a document's elements as they were when it was made. litehtml finds them; each letter is half as
/// wide as its font is high, so that they are the same on each machine. A document that takes too much work is logged
/// and has no sizes; what it displays is then up to local properties.
class Layout {
public:
  explicit Layout(const ElementDocument& document);
  ~Layout();

  /// Neither the element nor a parent has `display: none`.
  bool isDisplayed(const Element& element) const;
  /// The same, and `visibility` is `visible`.
  bool isVisible(const Element& element) const;
  /// Inside the borders, in pixels.
  LayoutSize getClientSize(const Element& element) const;

private:
  class Boxes;
  std::unique_ptr<Boxes> mBoxes; ///< null if it took too much work
};

}
