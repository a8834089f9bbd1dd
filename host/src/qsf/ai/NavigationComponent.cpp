#include "qsf/ai/NavigationComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf::ai {

static const DeclaredClass<NavigationComponent> declared;

void NavigationComponent::declareCamp() {
  camp::Class::declare<NavigationComponent>("qsf::ai::NavigationComponent")
      .base<Component>()
      .constructor1<Prototype*>();
}

}
