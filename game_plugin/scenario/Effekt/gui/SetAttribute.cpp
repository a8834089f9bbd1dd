#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/ElementsOfDocuments.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <Rocket/Core/Element.h>

namespace script {

struct SetAttributeEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The attribute style adds to the properties that the element has; the others stay.",
      "An element that isn't found is told in the name of SetInnerRML.",
  };

  Argument uniqueId;
  Argument elementId;
  Argument attributeName;
  Argument attributeValue;
};

static void read(SetAttributeEffect& effect, ParameterReader& in) {
  effect.uniqueId = readUniqueId(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_element", "ElementId", "The Id of the element");
  effect.attributeName = in.text(3, "You forgot sth", "AttributeName", "The attribute, style for example");
  effect.attributeValue = in.text(4, "You forgot an Attribute", "AttributeValue", "Its new value");
}

static void run(const SetAttributeEffect& effect, ScenarioHandler& handler) {
  forEachElement(effect.uniqueId, effect.elementId, [&](Rocket::Core::Element& element) {
    const std::string& value = handler.ResolveString(effect.attributeValue);
    element.SetAttribute(handler.ResolveString(effect.attributeName), value);
  });
}

EFFECT(SetAttribute, "GUI", "Sets an attribute like the position or the size")

}
