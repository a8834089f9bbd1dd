#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/shared/SetPropertyOfAll.h"

#include <optional>

namespace script {

struct SetPropertyEffect : SetPropertyOfAllEffect {};

static void read(SetPropertyEffect& effect, const Tokens& tokens) {
  effect.entityList =
      readStringParameter(tokens, 1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component =
      readStringParameter(tokens, 2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      readStringParameter(tokens, 3, "property_name", "Property", "Which property of the component should be affected");
  effect.value = readStringParameter(tokens, 4, "no_value", "Value", "Which value should be used for the property");
}

static std::string valueText(float value) { return floatToText(value); }
static std::string valueText(const std::string& value) { return value; }
static std::string valueText(bool value) { return value ? "1" : "0"; }
static std::string valueText(const EntityList& list) {
  std::string text;
  for (const std::uint64_t id : list.ids()) {
    if (!text.empty()) text += '/';
    text += std::to_string(id);
  }
  return text;
}

template <class Value> static std::optional<std::string> findIn(const Store<Value>& store, const std::string& name) {
  const std::size_t index = store.find(name);
  if (index == store.NOT_FOUND) return std::nullopt;
  return valueText(store.value(index));
}

/// The value of the first store entry of that name, in an order that scripts rely on; without one, the name itself. A
/// variable that is called like a literal thus changes what the line means.
static std::string findValue(const ScenarioHandler& handler, const std::string& name) {
  const GlobalStores& global = handler.GetGlobalStores();
  if (auto text = findIn(handler.variables, name)) return *text;
  if (auto text = findIn(handler.stringVariables, name)) return *text;
  if (auto text = findIn(handler.boolVariables, name)) return *text;
  if (auto text = findIn(handler.entityLists, name)) return *text;
  if (auto text = findIn(global.variables, name)) return *text;
  if (auto text = findIn(global.stringVariables, name)) return *text;
  return name;
}

static void run(const SetPropertyEffect& effect, ScenarioHandler& handler) {
  const std::string value = findValue(handler, effect.value.text()); // once: every entity gets the same
  setPropertyOfAll(effect, handler, [&] { return value; });
}

EFFECT(SetProperty, "Components",
       "Set a variable from a component to a specific value (notice that this is the old name - the new name is "
       "SetComponentProperty)")

}
