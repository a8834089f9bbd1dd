#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"
#include "qsf/message/MessageProxy.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace qsf {
class Map;
}

namespace script {

/// Makes its entity a house that can be cut open: lists the entities of up to four floors, its door and its parking
/// site, and shows one floor at a time. When the game has started, the house becomes a unit of its order info, the
/// floors are unlinked from their parents, and from then on whoever selects an entity of a floor selects the house. A
/// house that comes to be later stays as it is until it is told. Properties "Number of Layers", "Next Floor" (the floor
/// to start with), "Layer 1" to "Layer 4", "OH Door", "DefaultLayer", "StartLayer", "OrderInfo".
class OpenHouseComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::OpenHouseComponent"};
  explicit OpenHouseComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Shows the next floor, hides the one before, and tells which floor is current then: 0 up to the number of layers.
  int stepToNextFloor();
  /// Steps on until that floor is the current one, but four times at most; a floor that isn't reached is logged.
  void SetLayer(int floor);

  /// Whether the id is that of the house itself or stands in one of its lists; nobody looks for the id's entity.
  bool holdsEntity(std::uint64_t entityId) const;
  /// The first house of the map, by ascending id, that holds that id; null if none does.
  static qsf::Entity* findHouse(const qsf::Map& map, std::uint64_t entityId);
  /// The entity that blocks the door; uninitialised if there is none.
  std::uint64_t getDoorId() const { return mDoor; }

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  using EntityIds = std::vector<std::uint64_t>;
  enum class Floor { SHOWN, HIDDEN };

  std::array<const EntityIds*, 4> getFloors() const { return {&mLayer1, &mLayer2, &mLayer3, &mLayer4}; }
  void set(const EntityIds& floor, Floor state) const;
  void moveLights(const qsf::Entity& floorEntity, Floor state) const;
  void onGameStarted();
  void becomeUnit() const;
  void unlinkFloors() const;
  void listenToSelection();
  void moveSelection() const;

  int mNumberOfLayers = 0;
  int mNextFloor = 0;
  EntityIds mLayer1, mLayer2, mLayer3, mLayer4;
  std::uint64_t mDoor = qsf::UNINITIALIZED_ID;
  EntityIds mDefaultLayer;
  int mStartLayer = 0;
  std::string mOrderInfo;

  int mCurrentFloor = 0;
  bool mGameStarted = false; // stays over a shutdown, so that a house that comes back goes on
  qsf::MessageProxy mStartupProxy;
  qsf::MessageProxy mSelectionProxy;
};

}
CAMP_TYPE_NONCOPYABLE(script::OpenHouseComponent)
