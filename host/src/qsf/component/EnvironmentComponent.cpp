#include "qsf/component/EnvironmentComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

static const DeclaredClass<EnvironmentComponent> declared;

void EnvironmentComponent::declareCamp() {
  using Own = EnvironmentComponent;
  camp::Class::declare<Own>("qsf::EnvironmentComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("GroundFogStart", &Own::getGroundFogStart, &Own::setGroundFogStart)
      .property("AtmosphereFogStart", &Own::getAtmosphereFogStart, &Own::setAtmosphereFogStart);
}

}
