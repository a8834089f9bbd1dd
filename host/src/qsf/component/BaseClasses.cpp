#include "qsf/component/BaseClasses.h"

#include "qsf/action/Action.h"
#include "qsf/component/Component.h"
#include "qsf/game/CommandManager.h"

#include <camp/classbuilder.hpp>

namespace qsf {

namespace {

void declare() {
  camp::Class::declare<Object>("qsf::Object");
  camp::Class::declare<Prototype>("qsf::Prototype");
  Component::declareCamp();
  Action::declareCamp();
  game::CommandManager::declareCamp();
  game::Command::declareCamp();
}

}

void declareBaseClasses() {
  static const bool declared = (declare(), true);
  static_cast<void>(declared);
}

}
