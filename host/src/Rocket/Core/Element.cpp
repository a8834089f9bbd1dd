#include "Rocket/Core/Element.h"

#include "Declarations.h"
#include "Layout.h"
#include "Limits.h"
#include "Reports.h"
#include "RmlReader.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/split.hpp>

#include <algorithm>
#include <iterator>
#include <set>

namespace Rocket::Core {

namespace {

std::vector<std::string> splitClasses(const std::string& names) {
  std::vector<std::string> classes;
  boost::algorithm::split(classes, names, boost::algorithm::is_space(), boost::algorithm::token_compress_on);
  std::erase(classes, "");
  return classes;
}

std::size_t countElements(const Element& element) {
  std::size_t count = 1;
  for (const Element::Content& content : element.GetContent())
    if (content.element) count += countElements(*content.element);
  return count;
}

int depthOf(const Element& element) {
  int depth = 0;
  for (const Element* parent = element.GetParentNode(); parent; parent = parent->GetParentNode())
    ++depth;
  return depth;
}

const Element& rootOf(const Element& element) {
  const Element* root = &element;
  while (root->GetParentNode())
    root = root->GetParentNode();
  return *root;
}

void collectText(const Element& element, String& text) {
  for (const Element::Content& content : element.GetContent())
    if (content.element)
      collectText(*content.element, text);
    else
      text += content.text;
}

}

Element::Element(const String& tag) : mTag(tag) {}

Element::~Element() {
  for (const Content& content : mContent)
    if (content.element) content.element->mParent = nullptr;
}

String Element::GetId() const { return GetAttribute("id"); }

void Element::SetId(const String& id) { SetAttribute("id", id); }

void Element::SetAttribute(const String& name, const String& value) {
  if (name.empty()) return;
  if (!mAttributes.Find(name) && mAttributes.Size() >= MAXIMUM_ATTRIBUTES) {
    warn("An element has no room for the attribute \"" + name + "\"");
    return;
  }
  mAttributes.Set(name, value);
  if (name == "style") AddDeclarations(value);
  LayoutChanged();
}

const String* Element::FindAttribute(const String& name) const { return mAttributes.Find(name); }

String Element::GetAttribute(const String& name, const String& defaultValue) const {
  return mAttributes.Get(name, defaultValue);
}

void Element::RemoveAttribute(const String& name) {
  if (mAttributes.Remove(name)) LayoutChanged();
}

void Element::SetClass(const String& name, bool activate) {
  std::vector<std::string> classes = splitClasses(GetClassNames());
  const std::size_t before = classes.size();
  const std::vector<std::string> parts = splitClasses(name);
  if (activate) {
    std::set<std::string> present(classes.begin(), classes.end());
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(classes),
                 [&](const std::string& part) { return present.insert(part).second; });
  } else {
    const std::set<std::string> unwanted(parts.begin(), parts.end());
    std::erase_if(classes, [&](const std::string& present) { return unwanted.contains(present); });
  }
  if (classes.size() != before) SetAttribute("class", String(boost::algorithm::join(classes, " ")));
}

bool Element::IsClassSet(const String& name) const {
  const std::vector<std::string> classes = splitClasses(GetClassNames());
  return std::find(classes.begin(), classes.end(), name) != classes.end();
}

void Element::SetPseudoClass(const String& name, bool activate) {
  if (IsPseudoClassSet(name) == activate) return;
  if (activate)
    mPseudoClasses.push_back(name);
  else
    std::erase(mPseudoClasses, name);
  LayoutChanged();
}

bool Element::IsPseudoClassSet(const String& name) const {
  return std::find(mPseudoClasses.begin(), mPseudoClasses.end(), name) != mPseudoClasses.end();
}

bool Element::SetProperty(const String& name, const String& value) {
  if (name.empty()) return false;
  AddDeclaration(name, value);
  LayoutChanged();
  return true;
}

void Element::RemoveProperty(const String& name) {
  if (mProperties.Remove(name)) LayoutChanged();
}

void Element::AddDeclarations(std::string_view declarations) {
  for (const auto& [name, value] : readDeclarations(declarations))
    AddDeclaration(name, value);
}

// The one that was set last stands last: of a shorthand and its long form, the later one counts.
void Element::AddDeclaration(const String& name, const String& value) {
  mProperties.Remove(name);
  if (mProperties.Size() >= MAXIMUM_ATTRIBUTES)
    warn("An element has no room for the local property \"" + name + "\"");
  else
    mProperties.Set(name, value);
}

String Element::GetInnerRML() const { return writeInnerRml(*this); }

bool Element::SetInnerRML(const String& rml) {
  RmlText text;
  bool readable = readRml(rml, text);
  if (readable && depthOf(*this) + text.depth > MAXIMUM_DEPTH) {
    text.fault.reason = "elements would stand more than " + std::to_string(MAXIMUM_DEPTH) + " deep in each other";
    readable = false;
  } else if (readable && countElements(rootOf(*this)) - (countElements(*this) - 1) + text.elements > MAXIMUM_ELEMENTS) {
    text.fault.reason = "the document would hold more than " + std::to_string(MAXIMUM_ELEMENTS) + " elements";
    readable = false;
  }
  if (!readable) {
    warn("The inner RML of \"" + GetId() + "\" can't be read, line " + std::to_string(text.fault.line) + ", column " +
         std::to_string(text.fault.column) + ": " + text.fault.reason);
    return false;
  }
  Adopt(RmlBuilder::makeContent(text.xml));
  LayoutChanged();
  return true;
}

void Element::Adopt(std::vector<Content> content) {
  for (const Content& old : mContent)
    if (old.element) old.element->mParent = nullptr;
  mContent = std::move(content);
  for (const Content& fresh : mContent)
    if (fresh.element) fresh.element->mParent = this;
}

String Element::GetText() const {
  String text;
  collectText(*this, text);
  return text;
}

int Element::GetNumChildren() const {
  return static_cast<int>(std::count_if(mContent.begin(), mContent.end(),
                                        [](const Content& content) { return content.element != nullptr; }));
}

Element* Element::GetChild(int index) const {
  for (const Content& content : mContent)
    if (content.element && index-- == 0) return content.element.get();
  return nullptr;
}

ElementDocument* Element::GetOwnerDocument() {
  Element* root = this;
  while (root->mParent)
    root = root->mParent;
  return root->AsDocument();
}

const ElementDocument* Element::GetOwnerDocument() const { return const_cast<Element*>(this)->GetOwnerDocument(); }

Element* Element::GetElementById(const String& id) {
  if (id.empty()) return nullptr;
  const String* own = FindAttribute("id");
  if (own && *own == id) return this;
  for (const Content& content : mContent)
    if (content.element)
      if (Element* found = content.element->GetElementById(id)) return found;
  return nullptr;
}

void Element::LayoutChanged() {
  if (ElementDocument* document = GetOwnerDocument()) document->LayoutChanged();
}

bool Element::IsVisible() const {
  const ElementDocument* document = GetOwnerDocument();
  return document && document->IsShown() && document->GetLayout().isVisible(*this);
}

bool Element::IsDisplayed() const {
  const ElementDocument* document = GetOwnerDocument();
  return document && document->GetLayout().isDisplayed(*this);
}

float Element::GetClientWidth() const {
  const ElementDocument* document = GetOwnerDocument();
  return document ? document->GetLayout().getClientSize(*this).width : 0;
}

float Element::GetClientHeight() const {
  const ElementDocument* document = GetOwnerDocument();
  return document ? document->GetLayout().getClientSize(*this).height : 0;
}

}
