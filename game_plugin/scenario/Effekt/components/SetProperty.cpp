#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/SetPropertyOfAll.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <optional>

namespace script {

struct SetPropertyEffect : SetPropertyOfAllEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A value that is the name of a variable or a list stands for what that holds: the script's numbers, texts, bools "
      "and lists are searched in this order, then the global numbers and texts.",
      "A reference such as svar(name) isn't resolved; the plain name is enough.",
      "A list is written as its ids with slashes between them.",
  };
};

static void read(SetPropertyEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.component = in.component(2, "no_component", "ComponentName", "Which component should be affected");
  effect.property =
      in.property(3, 2, "property_name", "Property", "Which property of the component should be affected");
  effect.value = in.raw(4, "no_value", "Value", "Which value should be used for the property");
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

/// The value of the first store entry of that name; without one, the name itself.
static std::string findValue(const ScenarioHandler& handler, const std::string& name) {
  const GlobalStores& global = handler.getGlobalStores();
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
