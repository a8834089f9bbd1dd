#pragma once
#include "qsf/base/UniqueInstance.h"

#include <glm/glm.hpp>

namespace qsf {

class CameraComponent;

/// The picture of the game: a size in pixels and the camera that fills it. Headless, nothing is drawn.
class QSF_API RenderWindow {
public:
  int getWidth() const { return mWidth; }
  int getHeight() const { return mHeight; }
  float getAspectRatio() const { return static_cast<float>(mWidth) / static_cast<float>(mHeight); }
  glm::vec2 getNormalizedPosition(const glm::ivec2& pixel) const;
  glm::ivec2 getPixel(const glm::vec2& normalizedPosition) const;
  /// The main map's camera; null while no map is loaded.
  CameraComponent* getCameraComponent() const;

private:
  int mWidth = 1280;
  int mHeight = 720;
};

/// The program's window. Lives as long as the host, who owns it.
class QSF_API WindowApplication : public UniqueInstanceTarget<WindowApplication> {
public:
  WindowApplication() = default;
  RenderWindow& getRenderWindow() { return mRenderWindow; }

private:
  RenderWindow mRenderWindow;
};

}
