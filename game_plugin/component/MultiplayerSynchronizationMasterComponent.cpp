#include "game_plugin/component/MultiplayerSynchronizationMasterComponent.h"

#include "game_plugin/component/PropertyTags.h"

#include "qsf/reflection/CampTypes.h"

namespace script {

void MultiplayerSynchronizationMasterComponent::declareCamp() {
  camp::Class::declare<MultiplayerSynchronizationMasterComponent>("script::MultiplayerSynchronizationMasterComponent")
      .tag("Name", "MultiplayerSynchronizationMasterComponent")
      .tag("Description", "This component serves as master for all the helpers. It may not have any parents, because "
                          "then it can not do it's magic")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("[MP] Slave Slot", &MultiplayerSynchronizationMasterComponent::mSlaves)
      .tag("Description", "The name of the component e.g. em5::PersonComponent")
      .tag(SLOT_TAG, HARD_LINK);
}

}
