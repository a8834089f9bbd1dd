#include "apps/tidemark/test/steps/Reflection.h"

#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/ScriptScope.h"

#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/arrayproperty.hpp>
#include <fmt/format.h>

namespace tidemark::test {

namespace {

qsf::Component& requireComponent(const qsf::Entity& entity, const std::string& component) {
  if (qsf::Component* found = findComponent(entity, component)) return *found;
  throw NotThere(fmt::format("entity {} has no {}", entity.getId(), component));
}

void requireProperty(const qsf::Component& component, const PropertyName& name) {
  const camp::Class& campClass = component.getCampClass();
  if (campClass.hasProperty(name.property)) return;
  std::string known;
  for (std::size_t i = 0; i < campClass.propertyCount(); ++i)
    known += fmt::format("{}{}", known.empty() ? "" : ", ", campClass.property(i).name());
  throw DirectiveError(fmt::format("{} has no property '{}'; it has {}", name.component, name.property, known));
}

// Whole numbers are compared as such: an id has more digits than a float.
bool elementMatches(std::string_view expected, std::string_view found, std::optional<double> within) {
  if (expected == found) return true;
  const auto expectedNumber = parseNumber(expected), foundNumber = parseNumber(found);
  if (!expectedNumber || !foundNumber) return false;
  if (!within && parseInteger(expected) && parseInteger(found)) return *parseInteger(expected) == *parseInteger(found);
  if (!within && parseId(expected) && parseId(found)) return *parseId(expected) == *parseId(found);
  return numbersMatch(*expectedNumber, *foundNumber, within);
}

}

PropertyName parsePropertyName(std::string_view text) {
  const std::size_t dot = text.find('.');
  if (dot == std::string_view::npos || dot == 0 || dot + 1 == text.size())
    throw DirectiveError(fmt::format("'{}' is no COMPONENT.PROPERTY", text));
  return {std::string(text.substr(0, dot)), std::string(text.substr(dot + 1))};
}

PropertyValue takePropertyValue(WordCursor& words, std::string_view what) {
  const bool quoted = words.peek() && words.peek()->quoted;
  PropertyValue value{words.take(what), std::nullopt};
  const auto reference = parseEntityReference(value.text);
  if (!quoted && reference && !reference->list.empty()) value.reference = *reference;
  return value;
}

std::string resolveValue(const TestSession& session, const PropertyValue& value) {
  if (!value.reference || !findList(session, value.reference->list)) return value.text;
  return fmt::format("{}", session.resolve(*value.reference));
}

void requireComponentClass(const std::string& component) {
  if (!qsf::findComponentClass(qsf::StringHash(component)))
    throw DirectiveError(fmt::format("there is no component '{}'", component));
}

qsf::Component* findComponent(const qsf::Entity& entity, const std::string& component) {
  requireComponentClass(component);
  return entity.getComponentById(qsf::StringHash(component));
}

std::string readProperty(const qsf::Entity& entity, const PropertyName& name) {
  // An entity that was never hidden or shown has no component that tells so.
  if (name.component == "qsf::game::HiddenComponent" && name.property == "Hidden") return entity.isHidden() ? "1" : "0";
  const qsf::Component& component = requireComponent(entity, name.component);
  requireProperty(component, name);
  return component.getPropertyAsString(name.property);
}

std::size_t countElements(const qsf::Entity& entity, const PropertyName& name) {
  const qsf::Component& component = requireComponent(entity, name.component);
  requireProperty(component, name);
  const camp::Property& property = component.getCampClass().property(name.property);
  if (property.type() != camp::arrayType)
    throw DirectiveError(fmt::format("{}.{} is no array", name.component, name.property));
  return static_cast<const camp::ArrayProperty&>(property).size(camp::UserObject(component));
}

void writeProperty(qsf::Entity& entity, const PropertyName& name, const std::string& value) {
  qsf::Component& component = requireComponent(entity, name.component);
  requireProperty(component, name);
  try {
    component.setPropertyByString(name.property, value);
  } catch (const std::exception& fault) {
    throw DirectiveError(
        fmt::format("{}.{} doesn't take '{}': {}", name.component, name.property, value, fault.what()));
  }
}

void addComponent(qsf::Entity& entity, const std::string& component) {
  requireComponentClass(component);
  if (!entity.getOrCreateComponentById(qsf::StringHash(component)))
    throw DirectiveError(fmt::format("a component '{}' can't be made", component));
}

bool valueMatches(std::string_view expected, std::string_view found, std::optional<double> within) {
  if (textMatches(expected, found)) return true;
  const std::vector<Word> expectedWords = splitWords(expected.find('"') == std::string_view::npos ? expected : "");
  const std::vector<Word> foundWords = splitWords(found.find('"') == std::string_view::npos ? found : "");
  if (expectedWords.empty() || expectedWords.size() != foundWords.size()) return false;
  for (std::size_t i = 0; i < expectedWords.size(); ++i)
    if (!elementMatches(expectedWords[i].text, foundWords[i].text, within)) return false;
  return true;
}

}
