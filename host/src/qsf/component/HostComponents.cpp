#include "qsf/component/HostComponents.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

/// The bases cannot be made by name, so they are declared and not added.
void declareBases() {
  camp::Class::declare<Object>("qsf::Object");
  camp::Class::declare<Prototype>("qsf::Prototype");
  Component::declareCamp();
}

}

void declareHostClasses() {
  static const bool basesDeclared = (declareBases(), true);
  static_cast<void>(basesDeclared);
  ClassRegistry::declareOnce<TransformComponent>();
  ClassRegistry::declareOnce<MetadataComponent>();
  ClassRegistry::declareOnce<LinkComponent>();
}

}
