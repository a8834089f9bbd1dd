#pragma once
#include "em5/gui/IngameHud.h"
#include "qsf/base/UniqueInstance.h"
#include "qsf/gui/GuiContext.h"

#include <memory>
#include <string>

namespace em5 {

/// The game's GUI. Exists in a game program from its start to its end, between games too; never in the editor.
class QSF_API EmergencyGui : public qsf::UniqueInstanceTarget<EmergencyGui> {
public:
  EmergencyGui();
  ~EmergencyGui();

  qsf::GuiContext& getGuiContext() { return mGuiContext; }
  /// Null once the GUI is being taken down.
  IngameHud* getIngameHud() const { return mIngameHud.get(); }
  void hideIngameHud();
  void showIngameHud();

  /// Cursor operations leave a trace in the call recorder, under their qualified names. Icons are not tested for
  /// existence.
  void setMouseCursor(const std::string& icon);
  void resetMouseCursor();
  void showMouseCursor(bool visible);
  /// Empty while the default cursor shows.
  const std::string& getMouseCursor() const { return mMouseCursor; }
  bool isMouseCursorVisible() const { return mMouseCursorVisible; }

private:
  qsf::GuiContext mGuiContext;
  std::unique_ptr<IngameHud> mIngameHud;
  std::string mMouseCursor;
  bool mMouseCursorVisible = true;
};

}
