#include "qsf/window/RenderWindow.h"

#include "qsf/Qsf.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/map/Map.h"

namespace qsf {

glm::vec2 RenderWindow::getNormalizedPosition(const glm::ivec2& pixel) const {
  return {static_cast<float>(pixel.x) / static_cast<float>(mWidth),
          static_cast<float>(pixel.y) / static_cast<float>(mHeight)};
}

glm::ivec2 RenderWindow::getPixel(const glm::vec2& normalizedPosition) const {
  return {static_cast<int>(normalizedPosition.x * static_cast<float>(mWidth)),
          static_cast<int>(normalizedPosition.y * static_cast<float>(mHeight))};
}

CameraComponent* RenderWindow::getCameraComponent() const {
  const Qsf* host = Qsf::instance();
  const Entity* camera = host ? host->getMainMap().getEntityById(Map::CAMERA_ENTITY_ID) : nullptr;
  return camera ? camera->getComponent<CameraComponent>() : nullptr;
}

}
