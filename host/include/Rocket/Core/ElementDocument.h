#pragma once
#include "Rocket/Core/Element.h"

#include <functional>

namespace Rocket::Core {

class Layout;

/// A document that was read: it is its own `body`. Shared, so that it lives on while an event of it runs.
class QSF_API ElementDocument : public Element {
public:
  /// Hears events that elements hand to their document by an attribute, with the attribute's text as name.
  using EventHandler = std::function<void(const String& name, Event& event)>;

  /// An empty one.
  ElementDocument();
  ~ElementDocument() override;

  /// Reads a whole document (`<rml>` with `<head>` and `<body>`), or RML that stands inside a body. Style sheets are
  /// those of `<style>` and `<link type="text/rcss" href="...">`, which is looked for beside the source, then as
  /// documents are. Null if it can't be read; then one line with source, line, column and reason is logged.
  static std::shared_ptr<ElementDocument> Read(const String& rml, const String& sourceUrl);

  /// The name by which it was loaded.
  const String& GetSourceURL() const { return mSourceUrl; }
  const String& GetTitle() const { return mTitle; }
  /// The rules of its style sheets in their order, one a line, without comments and what is no rule.
  const String& GetStyleSheet() const { return mStyleSheet; }

  /// Whether it is on the screen. False at first.
  bool IsShown() const { return mShown; }
  void SetShown(bool shown) { mShown = shown; }

  void SetEventHandler(EventHandler handler);
  /// Hands the event on. Nothing happens without a handler; what it throws is logged.
  void HandEvent(const String& name, Event& event);

  /// Style and places of all elements, made anew if something has changed since.
  const Layout& GetLayout() const;
  /// For elements: something has changed that the layout depends on.
  void LayoutChanged();

protected:
  ElementDocument* AsDocument() override { return this; }

private:
  friend class RmlBuilder;

  String mSourceUrl;
  String mTitle;
  String mStyleSheet;
  EventHandler mHandler;
  bool mShown = false;
  mutable std::unique_ptr<Layout> mLayout;
};

/// Why a text is no RML, and where; lines and columns from 1, columns in bytes.
struct RmlFault {
  int line = 1;
  int column = 1;
  std::string reason;
};
/// True if Element::SetInnerRML would read the text; tells nobody.
QSF_API bool IsReadable(const String& rml, RmlFault* fault = nullptr);

}
