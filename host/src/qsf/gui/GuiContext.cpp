#include "qsf/gui/GuiContext.h"

#include "qsf/gui/GuiDocument.h"

#include <algorithm>
#include <cmath>

namespace qsf {

void GuiContext::setNormalizedMouseCursorPosition(const glm::vec2& position) {
  for (int axis = 0; axis < 2; ++axis)
    if (!std::isnan(position[axis])) mCursor[axis] = std::clamp(position[axis], 0.0f, 1.0f);
}

GuiDocument* GuiContext::findDocument(const std::string& name) const {
  const auto found = std::find_if(mDocuments.begin(), mDocuments.end(),
                                  [&](const GuiDocument* document) { return document->getName() == name; });
  return found == mDocuments.end() ? nullptr : *found;
}

}
