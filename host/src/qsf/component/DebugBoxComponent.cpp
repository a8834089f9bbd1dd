#include "qsf/component/DebugBoxComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

static const DeclaredClass<DebugBoxComponent> declared;

void DebugBoxComponent::declareCamp() {
  camp::Class::declare<DebugBoxComponent>("qsf::DebugBoxComponent").base<Component>().constructor1<Prototype*>();
}

}
