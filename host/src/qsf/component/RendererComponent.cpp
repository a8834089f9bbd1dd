#include "qsf/component/RendererComponent.h"

#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

static const DeclaredClass<RendererComponent> declared;

void RendererComponent::declareCamp() {
  camp::Class::declare<RendererComponent>("qsf::RendererComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("RenderQueueId", &RendererComponent::getRenderQueueId, &RendererComponent::setRenderQueueId);
}

}
