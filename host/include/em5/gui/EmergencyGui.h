#pragma once
#include "em5/gui/IngameHud.h"
#include "em5/gui/MainMenuManager.h"
#include "qsf/base/UniqueInstance.h"
#include "qsf/gui/GuiContext.h"

#include <memory>
#include <string>

namespace em5 {

class GuiInput;

/// The game's GUI. Exists in a game program from its start to its end, between games too; never in the editor.
class QSF_API EmergencyGui : public qsf::UniqueInstanceTarget<EmergencyGui> {
public:
  EmergencyGui();
  ~EmergencyGui();

  qsf::GuiContext& getGuiContext() { return mGuiContext; }
  /// Null once the GUI is being taken down.
  IngameHud* getIngameHud() const { return mIngameHud.get(); }
  /// Null once the GUI is being taken down.
  MainMenuManager* getMainMenuManager() const { return mMainMenuManager.get(); }
  /// Never null; hidden at first.
  qsf::GuiDocument* getLoadingScreen() const { return mLoadingScreen.get(); }
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

  /// For the host: a game starts. The HUD's documents are visible from now on, those of the main menu and the loading
  /// screen are not.
  void startGame();

private:
  qsf::GuiContext mGuiContext;
  std::unique_ptr<IngameHud> mIngameHud;
  std::unique_ptr<MainMenuManager> mMainMenuManager;
  std::unique_ptr<qsf::GuiDocument> mLoadingScreen;
  std::unique_ptr<GuiInput> mInput; ///< null without a host
  std::string mMouseCursor;
  bool mMouseCursorVisible = true;
};

}
