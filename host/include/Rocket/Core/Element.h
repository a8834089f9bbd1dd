#pragma once
#include "Rocket/Core/Dictionary.h"
#include "Rocket/Core/Event.h"
#include "Rocket/Core/EventListener.h"

#include <memory>
#include <sstream>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Rocket::Core {

class ElementDocument;

/// An element of a document. Its document owns it; it lives on while an event of it is under way, off its document. All
/// that is said about what can be seen needs a layout, which is made when it is asked for. Elements are made by inner
/// RML only.
class QSF_API Element : public std::enable_shared_from_this<Element> {
public:
  explicit Element(const String& tag);
  virtual ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  /// In lower case.
  const String& GetTagName() const { return mTag; }
  /// Empty if it has none.
  String GetId() const;
  void SetId(const String& id);

  /// `style` adds its declarations to the local properties; what stood there before stays, unless it is of the same
  /// name. `class` sets the classes, `onTYPE` the name with which events of the type are handed to the document.
  void SetAttribute(const String& name, const String& value);
  void SetAttribute(const String& name, const char* value) { SetAttribute(name, String(value)); }
  template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
  void SetAttribute(const String& name, const T& value) {
    std::ostringstream text;
    text << value;
    SetAttribute(name, String(text.str()));
  }
  bool HasAttribute(const String& name) const { return FindAttribute(name) != nullptr; }
  /// Null if it has none of that name.
  const String* FindAttribute(const String& name) const;
  String GetAttribute(const String& name, const String& defaultValue = String()) const;
  /// Local properties that a `style` has set stay.
  void RemoveAttribute(const String& name);
  int GetNumAttributes() const { return static_cast<int>(mAttributes.Size()); }
  /// In the order of the RML, later ones behind.
  const Dictionary& GetAttributes() const { return mAttributes; }

  /// Names with blanks between are several classes.
  void SetClass(const String& name, bool activate);
  bool IsClassSet(const String& name) const;
  /// Separated by blanks.
  void SetClassNames(const String& names) { SetAttribute("class", names); }
  String GetClassNames() const { return GetAttribute("class"); }
  /// `hover`, `focus`, `active`: states that style sheets ask for.
  void SetPseudoClass(const String& name, bool activate);
  bool IsPseudoClassSet(const String& name) const;

  /// Local properties, which go above those of style sheets. False for a name that is empty.
  bool SetProperty(const String& name, const String& value);
  /// Null if it isn't set locally.
  const String* GetLocalProperty(const String& name) const { return mProperties.Find(name); }
  void RemoveProperty(const String& name);
  /// In the order in which they were set last.
  const Dictionary& GetLocalProperties() const { return mProperties; }

  String GetInnerRML() const;
  void GetInnerRML(String& rml) const { rml = GetInnerRML(); }
  /// Replaces what stands inside. What can't be read as RML, or goes beyond the limits of documents, leaves what was
  /// there, logs one line with column and reason, and gives false. The old children stay alive while events of theirs
  /// run.
  bool SetInnerRML(const String& rml);
  /// The text inside, without tags and with entities decoded; blanks stay.
  String GetText() const;

  /// What stands inside, in its order: texts and elements.
  struct Content {
    std::shared_ptr<Element> element; ///< null: a text
    String text;
  };
  const std::vector<Content>& GetContent() const { return mContent; }
  /// Child elements; texts aren't counted.
  int GetNumChildren() const;
  /// Null beyond the children.
  Element* GetChild(int index) const;
  /// Null for a document's own element, and once it has left its document.
  Element* GetParentNode() const { return mParent; }
  /// Null once it has left its document.
  ElementDocument* GetOwnerDocument();
  const ElementDocument* GetOwnerDocument() const;
  /// This one or the first below it, in the order of the text. Null if there is none, and for an empty id.
  Element* GetElementById(const String& id);

  /// False if style sheets or local properties hide it or a parent (`display: none`, `visibility: hidden`), if its
  /// document is hidden, and once it has left its document.
  bool IsVisible() const;
  /// False if it or a parent has `display: none`, and once it has left its document.
  bool IsDisplayed() const;
  /// Width and height inside the borders, in pixels, of a window of 1280 by 720. 0 for what takes no room.
  float GetClientWidth() const;
  float GetClientHeight() const;

  /// Attached again for the same event and phase, a listener is still called once. The listener must not be null.
  void AddEventListener(const String& event, EventListener* listener, bool inCapturePhase = false);
  void RemoveEventListener(const String& event, EventListener* listener, bool inCapturePhase = false);
  /// Sends an event: listeners in capture phase from the document down, then the target, then up again; at each element
  /// of the last two, its listeners in the order of attaching, then its own handling. False if it was stopped. Events
  /// that cause each other in a chain end at a depth of 32.
  bool DispatchEvent(const String& type, const Dictionary& parameters, bool interruptible = false);
  /// As a click with the left mouse button.
  void Click();
  /// The element's own handling: `onTYPE` hands the event to the document it stands in.
  virtual void ProcessEvent(Event& event);

protected:
  virtual ElementDocument* AsDocument() { return nullptr; }

private:
  friend class EventListener;
  friend class RmlBuilder;

  struct AttachedListener {
    String event;
    EventListener* listener;
    bool inCapturePhase;
  };

  void LayoutChanged();
  void AddDeclarations(std::string_view declarations);
  void AddDeclaration(const String& name, const String& value);
  void Adopt(std::vector<Content> content);
  void Meet(Event& event);
  void CallListeners(Event& event);
  bool IsAttached(const AttachedListener& attached) const;

  String mTag;
  Dictionary mAttributes;
  Dictionary mProperties;
  std::vector<String> mPseudoClasses;
  std::vector<Content> mContent;
  std::vector<AttachedListener> mListeners;
  Element* mParent = nullptr;
};

}
