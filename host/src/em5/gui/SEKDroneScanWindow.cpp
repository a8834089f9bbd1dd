#include "em5/gui/SEKDroneScanWindow.h"

#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Entity.h"

namespace em5 {

static const qsf::RecordedOperation setCameraDroneCall{"em5::SEKDroneScanWindow::setCameraDrone", "entity"};

SEKDroneScanWindow::SEKDroneScanWindow(qsf::GuiContext& context) : qsf::GuiDocument(context, "SEKDroneScanWindow") {
  loadByFilename("em5/gui/ingamehud/drone_scan.rml");
}

SEKDroneScanWindow::~SEKDroneScanWindow() = default;

void SEKDroneScanWindow::setCameraDrone(const qsf::Entity& entity) {
  mObservedEntityId = entity.getId();
  if (!mHeatRenderer.mTexture) mHeatRenderer.mTexture = std::make_unique<HeatTexture>();
  setCameraDroneCall.record({std::to_string(mObservedEntityId)});
}

void SEKDroneScanWindow::removeCamera() {
  mObservedEntityId = qsf::UNINITIALIZED_ID;
  mHeatRenderer.mTexture.reset();
}

}
