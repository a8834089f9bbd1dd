#include "qsf/gui/GuiContext.h"

#include "DocumentFiles.h"
#include "qsf/Qsf.h"
#include "qsf/gui/GuiDocument.h"
#include "qsf/input/InputSystem.h"
#include "qsf/window/WindowApplication.h"

#include <algorithm>
#include <cmath>

namespace qsf {

namespace {

glm::vec2 getWindowSize() {
  const UniqueInstance<WindowApplication> application;
  if (!application) return {1.0f, 1.0f};
  const RenderWindow& window = application->getRenderWindow();
  return {static_cast<float>(window.getWidth()), static_cast<float>(window.getHeight())};
}

}

GuiContext::GuiContext() { installDocumentSystem(); }

glm::vec2 GuiContext::getNormalizedMouseCursorPosition() const {
  const Qsf* host = Qsf::instance();
  if (!host) return {0.5f, 0.5f};
  return glm::clamp(host->getInputSystem().getMouse().getPosition() / getWindowSize(), 0.0f, 1.0f);
}

void GuiContext::setNormalizedMouseCursorPosition(const glm::vec2& position) {
  Qsf* host = Qsf::instance();
  if (!host) return;
  glm::vec2 cursor = getNormalizedMouseCursorPosition();
  for (int axis = 0; axis < 2; ++axis)
    if (!std::isnan(position[axis])) cursor[axis] = std::clamp(position[axis], 0.0f, 1.0f);
  host->getInputSystem().getMouse().setPosition(cursor * getWindowSize());
}

GuiDocument* GuiContext::findDocument(const std::string& name) const {
  const auto found = std::find_if(mDocuments.begin(), mDocuments.end(),
                                  [&](const GuiDocument* document) { return document->getName() == name; });
  return found == mDocuments.end() ? nullptr : *found;
}

GuiDocument* GuiContext::findDocumentByAddress(std::uint64_t address) const {
  const auto found = std::find_if(mDocuments.begin(), mDocuments.end(),
                                  [&](const GuiDocument* document) { return document->getAddress() == address; });
  return found == mDocuments.end() ? nullptr : *found;
}

}
