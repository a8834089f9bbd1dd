#include "qsf/game/SelectableComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf::game {

static const DeclaredClass<SelectableComponent> declared;

void SelectableComponent::declareCamp() {
  camp::Class::declare<SelectableComponent>("qsf::game::SelectableComponent")
      .base<Component>()
      .constructor1<Prototype*>();
}

}
