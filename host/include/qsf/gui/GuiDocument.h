#pragma once
#include "qsf/Export.h"

#include <string>

namespace qsf {

class GuiContext;

/// One window of a GUI. Registers itself at its context for as long as it lives; whoever makes it owns it. Hidden at
/// first.
class QSF_API GuiDocument {
public:
  GuiDocument(GuiContext& context, std::string name);
  virtual ~GuiDocument();
  GuiDocument(const GuiDocument&) = delete;
  GuiDocument& operator=(const GuiDocument&) = delete;

  const std::string& getName() const { return mName; }
  GuiContext& getGuiContext() const { return mContext; }

  void setVisible(bool visible) { mVisible = visible; }
  bool isVisible() const { return mVisible; }
  void show() { setVisible(true); }
  void hide() { setVisible(false); }

private:
  GuiContext& mContext;
  std::string mName;
  bool mVisible = false;
};

}
