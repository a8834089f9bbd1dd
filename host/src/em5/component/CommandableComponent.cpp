#include "em5/component/CommandableComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<CommandableComponent> declared;

void CommandableComponent::declareCamp() {
  camp::Class::declare<CommandableComponent>("em5::CommandableComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("PlayerId", &CommandableComponent::getPlayerId, &CommandableComponent::setPlayerId)
      .property("OrderInfo", &CommandableComponent::getOrderInfo, &CommandableComponent::setOrderInfo)
      .property("Commands", &CommandableComponent::mCommandIds)
      .tag(qsf::UNSIGNED_TAG);
}

}
