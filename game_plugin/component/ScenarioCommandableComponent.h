#pragma once
#include "qsf/component/Component.h"

#include <string>
#include <vector>

namespace script {

/// Gives its entity commands that scripts define, by their names: those of the action bar and those of a mouse click on
/// a target. Properties "ActionBarCommandArray", "MouseClickCommandArray".
class ScenarioCommandableComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::ScenarioCommandableComponent"};
  explicit ScenarioCommandableComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::string>& getActionBarCommands() const { return mActionBarCommands; }
  const std::vector<std::string>& getMouseClickCommands() const { return mMouseClickCommands; }

private:
  std::vector<std::string> mActionBarCommands;
  std::vector<std::string> mMouseClickCommands;
};

}
CAMP_TYPE_NONCOPYABLE(script::ScenarioCommandableComponent)
