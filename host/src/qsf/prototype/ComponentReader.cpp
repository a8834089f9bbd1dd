#include "qsf/prototype/ComponentReader.h"

#include "qsf/base/NearNames.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <camp/property.hpp>

namespace qsf {

namespace {

bool isComponentClass(const camp::Class& metaclass) {
  if (metaclass == camp::classByType<Component>()) return true;
  for (std::size_t i = 0; i < metaclass.baseCount(); ++i)
    if (isComponentClass(metaclass.base(i))) return true;
  return false;
}

std::vector<std::string> componentNames() {
  std::vector<std::string> names;
  for (const camp::Class* metaclass : ClassRegistry::getClasses())
    if (isComponentClass(*metaclass)) names.push_back(metaclass->name());
  return names;
}

std::vector<std::string> propertyNames(const camp::Class& metaclass) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    names.push_back(metaclass.property(i).name());
  return names;
}

std::string scalarText(const JsonPlace& value) {
  const Json& json = value.getValue();
  if (json.is_string()) return json.get<std::string>();
  if (json.is_boolean()) return json.get<bool>() ? "1" : "0";
  if (json.is_number_float()) return toText(value.asNumber());
  if (json.is_number()) return json.dump();
  value.fail(std::string("a text, a number or a bool is expected here, not ") + json.type_name());
}

std::vector<std::string> elementTexts(const JsonPlace& array) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < array.size(); ++i)
    texts.push_back(scalarText(array.element(i)));
  return texts;
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words)
    text += (text.empty() ? "" : " ") + word;
  return text;
}

void readProperty(const JsonPlace& value, const std::string& name, Component& component) {
  const camp::UserObject object(component);
  const camp::Class& metaclass = object.getClass();
  if (!metaclass.hasProperty(name))
    value.fail("\"" + metaclass.name() + "\" has no property \"" + name + "\"" +
               nearNamesHint(name, propertyNames(metaclass)));
  const camp::Property& property = metaclass.property(name);
  try {
    if (property.type() == camp::arrayType && value.getValue().is_array())
      setPropertyElements(object, property, elementTexts(value));
    else if (value.getValue().is_array())
      setPropertyText(object, name, joined(elementTexts(value)));
    else
      setPropertyText(object, name, scalarText(value));
  } catch (const LoadError&) {
    throw;
  } catch (const std::exception& fault) {
    value.fail(fault.what());
  }
}

}

void readComponents(const JsonPlace& components, Prototype& prototype) {
  components.expectObject();
  components.eachMember([&](const std::string& className, const JsonPlace& properties) {
    properties.expectObject();
    Component* component = prototype.getOrCreateComponentById(StringHash(className), false);
    if (!component)
      properties.fail("unknown component \"" + className + "\"" + nearNamesHint(className, componentNames()));
    properties.eachMember(
        [&](const std::string& name, const JsonPlace& value) { readProperty(value, name, *component); });
  });
}

}
