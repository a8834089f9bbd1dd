#pragma once
#include "qsf/Export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Rocket::Core {
class Element;
class ElementDocument;
class Event;
}

namespace qsf {

class GuiContext;

/// One window of a GUI, with the RML document that it shows. Registers itself at its context for as long as it lives;
/// whoever makes it owns it. Hidden at first, and without RML. It may be destroyed at any time, inside its own events
/// too.
class QSF_API GuiDocument {
public:
  /// The name is for finding it; RML doesn't see it.
  explicit GuiDocument(GuiContext& context, std::string name = std::string());
  virtual ~GuiDocument();
  GuiDocument(const GuiDocument&) = delete;
  GuiDocument& operator=(const GuiDocument&) = delete;

  virtual void toggleVisibility();
  /// An element's attribute `onTYPE="NAME"` hands its events of the type here, with that name. "onClose" hides it.
  virtual void processEvent(const std::string& name, Rocket::Core::Event& event);
  virtual void processViewportDimensionsChanged();
  /// Asked before it is shown; false keeps it hidden.
  virtual bool onPreShow();
  virtual void onPostShow();
  /// Asked before it is hidden; false keeps it visible.
  virtual bool onPreHide();
  virtual void onPostHide();

  const std::string& getName() const { return mName; }
  GuiContext& getGuiContext() const { return mContext; }

  /// A number that stands for it where a pointer would be told: the same in each run, and no other document's.
  std::uint64_t getAddress() const { return mAddress; }

  /// Reads the RML file of that path below the working directory, else the asset of that local name, with the ending
  /// `.rml` or without. False if there is none or it can't be read (a malformed one is logged with line and column);
  /// what was loaded before then stays.
  bool loadByFilename(const std::string& filename);
  /// Hides it and lets go of its RML. False if there was none.
  bool unload();
  /// Null while nothing is loaded.
  Rocket::Core::ElementDocument* getElementDocument() const { return mElementDocument.get(); }
  /// Null if there is none, or nothing is loaded.
  Rocket::Core::Element* findElementById(const std::string& id) const;

  /// Showing and hiding fire the events `show` and `hide` at the document's own element.
  void setVisible(bool visible);
  bool isVisible() const { return mVisible; }
  void show() { setVisible(true); }
  /// Shown, it is the one that keys go to, until another one takes its place or is clicked.
  void showFocused();
  void hide() { setVisible(false); }

private:
  class FocusByClick;
  void fire(const char* type);
  void letGoOfRml();

  GuiContext& mContext;
  std::string mName;
  std::shared_ptr<Rocket::Core::ElementDocument> mElementDocument;
  std::unique_ptr<FocusByClick> mFocusByClick;
  std::shared_ptr<GuiDocument*> mSelf; ///< empty once it is destroyed, for those who called into it
  std::uint64_t mAddress;
  bool mVisible = false;
};

}
