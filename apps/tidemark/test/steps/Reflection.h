#pragma once
#include "apps/tidemark/test/TestSession.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qsf {
class Component;
}

namespace tidemark::test {

/// `COMPONENT.PROPERTY`. Names of properties may hold blanks, names of components hold no dot.
struct PropertyName {
  std::string component;
  std::string property;
};
/// Throws DirectiveError without a dot.
PropertyName parsePropertyName(std::string_view text);

/// A property's value as a directive writes it: text, or without quotes an id of a list of main.
struct PropertyValue {
  std::string text;
  std::optional<EntityReference> reference;
};
PropertyValue takePropertyValue(WordCursor& words, std::string_view what);
/// What it stands for now. `NAME[I]` of a list that main doesn't have is itself. Throws NotThere behind a list's end.
std::string resolveValue(const TestSession& session, const PropertyValue& value);

/// Throws DirectiveError for a component class that nobody has declared.
void requireComponentClass(const std::string& component);
/// Null if the entity lacks it. Throws DirectiveError for an unknown class.
qsf::Component* findComponent(const qsf::Entity& entity, const std::string& component);
/// Throws DirectiveError for an unknown class or property, NotThere if the entity lacks the component.
std::string readProperty(const qsf::Entity& entity, const PropertyName& name);
/// Number of elements of an array; a property that is none is a DirectiveError.
std::size_t countElements(const qsf::Entity& entity, const PropertyName& name);
/// A value that doesn't convert is a DirectiveError.
void writeProperty(qsf::Entity& entity, const PropertyName& name, const std::string& value);
/// Adds the component if the entity lacks it.
void addComponent(qsf::Entity& entity, const std::string& component);

/// Equal as texts; numbers and vectors also number by number, each no further apart than `within`.
bool valueMatches(std::string_view expected, std::string_view found, std::optional<double> within);

}
