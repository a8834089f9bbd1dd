#include "qsf/game/LightControllerComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf::game {

static const DeclaredClass<LightControllerComponent> declared;

void LightControllerComponent::declareCamp() {
  camp::Class::declare<LightControllerComponent>("qsf::game::LightControllerComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("LightType", &LightControllerComponent::getLightType, &LightControllerComponent::setLightType);
}

}
