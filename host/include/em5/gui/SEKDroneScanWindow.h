#pragma once
#include "qsf/base/Ids.h"
#include "qsf/gui/GuiDocument.h"

#include <cstdint>
#include <memory>

namespace qsf {
class Entity;
}

namespace em5 {

/// The picture of a heat camera. Headless it has a size in pixels, and no pixels.
struct QSF_API HeatTexture {
  int width = 512;
  int height = 512;
};

/// Draws what the drone's camera sees.
class QSF_API HeatRenderer {
public:
  /// Null while there is no camera.
  const HeatTexture* getHeatTexture() const { return mTexture.get(); }

private:
  friend class SEKDroneScanWindow;
  std::unique_ptr<HeatTexture> mTexture;
};

/// The window that shows what the drone sees. Owned by the HUD. Without a camera at first and whenever a game starts.
class QSF_API SEKDroneScanWindow : public qsf::GuiDocument {
public:
  explicit SEKDroneScanWindow(qsf::GuiContext& context);
  ~SEKDroneScanWindow() override;

  /// The drone's camera looks at that entity. Leaves a trace in the call recorder.
  void setCameraDrone(const qsf::Entity& entity);
  /// The entity that was set last, which may be gone; uninitialised without a camera.
  std::uint64_t getObservedEntityId() const { return mObservedEntityId; }
  HeatRenderer& getHeatRenderer() { return mHeatRenderer; }

  /// For the host: a game starts.
  void removeCamera();

private:
  HeatRenderer mHeatRenderer;
  std::uint64_t mObservedEntityId = qsf::UNINITIALIZED_ID;
};

}
