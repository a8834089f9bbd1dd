#include "game_plugin/component/MultiplayerSynchronizationHelperComponent.h"

#include "game_plugin/component/PropertyTags.h"
#include "game_plugin/scenario/Log.h"

#include "qsf/Qsf.h"
#include "qsf/map/Entity.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"

#include <camp/enum.hpp>
#include <camp/userobject.hpp>

namespace script {

void MultiplayerSynchronizationHelperComponent::declareCamp() {
  using Helper = MultiplayerSynchronizationHelperComponent;
  camp::Enum::declare<Types>("script::MultiplayerSynchronizationHelperComponent::Types")
      .value("UINT64", UINT64)
      .value("FLOAT", FLOAT)
      .value("STRING", STRING)
      .value("BOOL", BOOL);
  camp::Class::declare<Helper>("script::MultiplayerSynchronizationHelperComponent")
      .tag("Name", "MultiplayerSynchronizationHelperComponent")
      .tag("Description", "This component can synchronize one component property per entity. It can also be linked and "
                          "used from connected childs")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Component Name", &Helper::mComponentName)
      .tag("Description", "The name of the component e.g. em5::PersonComponent")
      .property("Property Name", &Helper::mPropertyName)
      .tag("Description", "The Name of the property e.g. \"Name\"")
      .property("Synchronized Entity", &Helper::mSynchronizedEntity)
      .tag("Description", "The entity which is synchronized")
      .tag(SLOT_TAG, HARD_LINK)
      .property("Type", &Helper::mType)
      .tag("Description",
           "The Type which is used for synchronizing Data. Notice string can be used anywhere but is often larger");
}

bool MultiplayerSynchronizationHelperComponent::onStartup() {
  mComponentId = qsf::StringHash(mComponentName);
  return true;
}

void MultiplayerSynchronizationHelperComponent::writeProperty() const {
  qsf::Entity* entity = qsf::Qsf::instance()->getMainMap().getEntityById(mSynchronizedEntity);
  if (!entity) return;
  qsf::Component* component = entity->getOrCreateComponentById(mComponentId);
  if (!component) {
    logInfo("Component does not exist " + mComponentName);
    return;
  }
  logInfo(mPropertyName + " " + mCurrentValue);
  try {
    camp::UserObject(*component).set(mPropertyName, mCurrentValue);
  } catch (const std::exception& exception) {
    logInfo(exception.what());
  }
}

}
