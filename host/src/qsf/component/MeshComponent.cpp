#include "qsf/component/MeshComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

static const DeclaredClass<MeshComponent> declared;

void MeshComponent::declareCamp() {
  camp::Class::declare<MeshComponent>("qsf::MeshComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Mesh", &MeshComponent::getMesh, &MeshComponent::setMesh)
      .property("Material", &MeshComponent::getMaterial, &MeshComponent::setMaterial);
}

}
