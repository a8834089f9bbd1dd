#include "game_plugin/component/OpenHouseComponent.h"

#include "game_plugin/component/PropertyTags.h"

#include "qsf/reflection/CampTypes.h"

#include <algorithm>

namespace script {

void OpenHouseComponent::declareCamp() {
  using House = OpenHouseComponent;
  camp::Class::declare<House>("script::OpenHouseComponent")
      .tag("Name", "OpenHouse (Tidemarks)")
      .tag("Description", "OpenHouse (Tidemarks)")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Number of Layers", &House::mNumberOfLayers)
      .tag("Description", "Number of Layers")
      .property("Next Floor", &House::mNextFloor)
      .tag("Description", "Current Floor")
      .tag("Default", 0)
      .property("Layer 1", &House::mLayer1)
      .tag("Description", "1st Layer")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Layer 2", &House::mLayer2)
      .tag("Description", "2nd Layer")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Layer 3", &House::mLayer3)
      .tag("Description", "3rd Layer")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Layer 4", &House::mLayer4)
      .tag("Description", "4th Layer")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("OH Door", &House::mDoor)
      .tag("Description", "Entity that blocks the door")
      .tag("Default", qsf::UNINITIALIZED_ID)
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("DefaultLayer", &House::mDefaultLayer)
      .tag("Description", "Parking site")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("StartLayer", &House::mStartLayer)
      .tag("Description", "If true, it will make the mesh of the base unit invisible")
      .property("OrderInfo", &House::mOrderInfo)
      .tag("Description", "set a orderinfo for the house which makes the unit has a avatar. Notice either vehicle or "
                          "personcomponent is required");
}

bool OpenHouseComponent::holdsEntity(std::uint64_t entityId) const {
  if (entityId == getEntityId() || entityId == mDoor) return true;
  return std::ranges::any_of(std::array{&mLayer1, &mLayer2, &mLayer3, &mLayer4, &mDefaultLayer},
                             [&](const EntityIds* ids) { return std::ranges::find(*ids, entityId) != ids->end(); });
}

}
