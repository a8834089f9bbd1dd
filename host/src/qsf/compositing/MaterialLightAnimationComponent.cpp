#include "qsf/compositing/MaterialLightAnimationComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf::compositing {

static const DeclaredClass<MaterialLightAnimationComponent> declared;

void MaterialLightAnimationComponent::declareCamp() {
  camp::Class::declare<MaterialLightAnimationComponent>("qsf::compositing::MaterialLightAnimationComponent")
      .base<Component>()
      .constructor1<Prototype*>();
}

}
