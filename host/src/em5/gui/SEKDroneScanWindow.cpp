#include "em5/gui/SEKDroneScanWindow.h"

namespace em5 {

SEKDroneScanWindow::SEKDroneScanWindow(qsf::GuiContext& context) : qsf::GuiDocument(context, "SEKDroneScanWindow") {
  loadByFilename("em5/gui/ingamehud/drone_scan.rml");
}

}
