#include "em5/component/CallForRescueComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<CallForRescueComponent> declared;

void CallForRescueComponent::declareCamp() {
  camp::Class::declare<CallForRescueComponent>("em5::CallForRescueComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("CanRescuedByDLK", &CallForRescueComponent::mCanRescuedByDLK);
}

}
