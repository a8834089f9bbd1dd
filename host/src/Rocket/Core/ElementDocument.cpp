#include "Rocket/Core/ElementDocument.h"

#include "Layout.h"
#include "Reports.h"
#include "RmlReader.h"

namespace Rocket::Core {

ElementDocument::ElementDocument() : Element("body") {}

ElementDocument::~ElementDocument() = default;

std::shared_ptr<ElementDocument> ElementDocument::Read(const String& rml, const String& sourceUrl) {
  RmlText text;
  if (!readRml(rml, text)) {
    warn("\"" + sourceUrl + "\" can't be read, line " + std::to_string(text.fault.line) + ", column " +
         std::to_string(text.fault.column) + ": " + text.fault.reason);
    return nullptr;
  }
  auto document = std::make_shared<ElementDocument>();
  RmlBuilder::fill(*document, text.xml, sourceUrl);
  return document;
}

void ElementDocument::SetEventHandler(EventHandler handler) { mHandler = std::move(handler); }

void ElementDocument::HandEvent(const String& name, Event& event) {
  const EventHandler handler = mHandler; // it may be taken away while it runs
  if (handler) callGuarded([&] { handler(name, event); }, "the event \"" + name + "\" of \"" + mSourceUrl + "\"");
}

const Layout& ElementDocument::GetLayout() const {
  if (!mLayout) mLayout = std::make_unique<Layout>(*this);
  return *mLayout;
}

void ElementDocument::LayoutChanged() { mLayout.reset(); }

bool IsReadable(const String& rml, RmlFault* fault) {
  RmlText text;
  const bool readable = readRml(rml, text);
  if (fault) *fault = text.fault;
  return readable;
}

}
