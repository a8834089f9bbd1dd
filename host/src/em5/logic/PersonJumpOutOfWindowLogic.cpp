#include "em5/logic/PersonJumpOutOfWindowLogic.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<PersonJumpOutOfWindowLogic> declared;

void PersonJumpOutOfWindowLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<PersonJumpOutOfWindowLogic>("em5::PersonJumpOutOfWindowLogic").base<GameLogic>().constructor0();
}

}
