#include "game_plugin/component/ScenarioCommandableComponent.h"

#include "qsf/reflection/CampTypes.h"

namespace script {

void ScenarioCommandableComponent::declareCamp() {
  // The description's spelling is what the editor has always shown.
  camp::Class::declare<ScenarioCommandableComponent>("script::ScenarioCommandableComponent")
      .tag("Name", "Scenario Commandable")
      .tag("Description", "Scenario Commandalbe")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("ActionBarCommandArray", &ScenarioCommandableComponent::mActionBarCommands)
      .tag("Description", "all commands, which should be shown in the action bar")
      .property("MouseClickCommandArray", &ScenarioCommandableComponent::mMouseClickCommands)
      .tag("Description", "all commands, which should aren't shown in the actionbar and are executed by mouse click");
}

}
