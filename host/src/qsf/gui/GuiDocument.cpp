#include "qsf/gui/GuiDocument.h"

#include "DocumentFiles.h"
#include "Rocket/Core.h"
#include "qsf/gui/GuiContext.h"

#include <algorithm>

namespace qsf {

/// Whoever clicks into a document wants to type there. Hears the click before the elements do.
class GuiDocument::FocusByClick : public Rocket::Core::EventListener {
public:
  explicit FocusByClick(GuiDocument& document) : mDocument(document) {}
  void ProcessEvent(Rocket::Core::Event& /*event*/) override {
    if (mDocument.mVisible) mDocument.mContext.mFocused = &mDocument;
  }

private:
  GuiDocument& mDocument;
};

GuiDocument::GuiDocument(GuiContext& context, std::string name)
    : mContext(context), mName(std::move(name)), mFocusByClick(std::make_unique<FocusByClick>(*this)),
      mSelf(std::make_shared<GuiDocument*>(this)), mAddress(mContext.mLastAddress += 0x100) {
  mContext.mDocuments.push_back(this);
}

GuiDocument::~GuiDocument() {
  *mSelf = nullptr;
  letGoOfRml();
  if (mContext.mFocused == this) mContext.mFocused = nullptr;
  auto& documents = mContext.mDocuments;
  documents.erase(std::remove(documents.begin(), documents.end(), this), documents.end());
}

void GuiDocument::toggleVisibility() { setVisible(!mVisible); }

void GuiDocument::processEvent(const std::string& name, Rocket::Core::Event& /*event*/) {
  if (name == "onClose") hide();
}

void GuiDocument::processViewportDimensionsChanged() {}

bool GuiDocument::onPreShow() { return true; }

void GuiDocument::onPostShow() {}

bool GuiDocument::onPreHide() { return true; }

void GuiDocument::onPostHide() {}

void GuiDocument::letGoOfRml() {
  if (!mElementDocument) return;
  // Events of it may still be under way.
  mElementDocument->RemoveEventListener("click", mFocusByClick.get(), true);
  mElementDocument->SetEventHandler(nullptr);
  mElementDocument->SetShown(false);
  mElementDocument.reset();
}

bool GuiDocument::loadByFilename(const std::string& filename) {
  std::string rml;
  if (!readDocumentFile(filename, rml)) return false;
  std::shared_ptr<Rocket::Core::ElementDocument> document = Rocket::Core::ElementDocument::Read(rml, filename);
  if (!document) return false;
  letGoOfRml();
  mElementDocument = std::move(document);
  mElementDocument->SetShown(mVisible);
  mElementDocument->AddEventListener("click", mFocusByClick.get(), true);
  mElementDocument->SetEventHandler([self = mSelf](const Rocket::Core::String& name, Rocket::Core::Event& event) {
    if (*self) (*self)->processEvent(name, event);
  });
  return true;
}

bool GuiDocument::unload() {
  const std::shared_ptr<GuiDocument*> self = mSelf;
  hide();
  if (!*self || !mElementDocument) return false;
  letGoOfRml();
  return true;
}

Rocket::Core::Element* GuiDocument::findElementById(const std::string& id) const {
  return mElementDocument ? mElementDocument->GetElementById(id) : nullptr;
}

void GuiDocument::setVisible(bool visible) {
  if (mVisible == visible) return;
  const std::shared_ptr<GuiDocument*> self = mSelf;
  if (!(visible ? onPreShow() : onPreHide()) || !*self) return;
  mVisible = visible;
  if (!visible && mContext.mFocused == this) mContext.mFocused = nullptr;
  if (mElementDocument) mElementDocument->SetShown(visible);
  fire(visible ? "show" : "hide");
  if (!*self) return;
  if (visible)
    onPostShow();
  else
    onPostHide();
}

void GuiDocument::showFocused() {
  const std::shared_ptr<GuiDocument*> self = mSelf;
  setVisible(true);
  if (*self && mVisible) mContext.mFocused = this;
}

void GuiDocument::fire(const char* type) {
  const std::shared_ptr<Rocket::Core::ElementDocument> document = mElementDocument;
  if (document) document->DispatchEvent(type, {});
}

}
