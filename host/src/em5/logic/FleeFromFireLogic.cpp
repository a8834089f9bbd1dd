#include "em5/logic/FleeFromFireLogic.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<FleeFromFireLogic> declared;

void FleeFromFireLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<FleeFromFireLogic>("em5::FleeFromFireLogic").base<GameLogic>().constructor0();
}

}
