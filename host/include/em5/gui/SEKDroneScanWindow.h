#pragma once
#include "qsf/gui/GuiDocument.h"

namespace em5 {

/// The window that shows what the drone sees. Owned by the HUD.
class QSF_API SEKDroneScanWindow : public qsf::GuiDocument {
public:
  explicit SEKDroneScanWindow(qsf::GuiContext& context);
};

}
