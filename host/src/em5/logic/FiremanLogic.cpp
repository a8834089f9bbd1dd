#include "em5/logic/FiremanLogic.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<FiremanLogic> declared;

void FiremanLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<FiremanLogic>("em5::FiremanLogic").base<GameLogic>().constructor0();
}

}
