#include "em5/component/UsableByEngineerComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<UsableByEngineerComponent> declared;

void UsableByEngineerComponent::declareCamp() {
  camp::Class::declare<UsableByEngineerComponent>("em5::UsableByEngineerComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>();
}

}
