#include "game_plugin/component/OpenHouseComponent.h"

#include "game_plugin/component/PropertyTags.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/Orders.h"

#include "em5/action/SpawnUnitAction.h"
#include "em5/base/Messages.h"
#include "em5/component/BuildingComponent.h"
#include "em5/component/CommandableComponent.h"
#include "em5/game/Game.h"
#include "qsf/Qsf.h"
#include "qsf/component/LightComponent.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/SelectableComponent.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/CampTypes.h"

#include <algorithm>

namespace script {

namespace {

/// How many steps a house goes for a floor: once round, if it has as many as there can be.
constexpr int MOST_STEPS = 4;
/// How far the lamps of a floor are lifted out of the way, in units.
constexpr float LIFT = 50;

/// A house that is taking the selection over. No other does while it removes and adds ids one by one. When it has ended
/// they hear of the change, and houses that list each other would hand the selection round for ever: behind one change
/// of the player's only so many take over.
class TakeOver {
public:
  TakeOver() {
    if (sDepth++ == 0) sNumber = 0;
    ++sNumber;
    sIsChanging = true;
  }
  ~TakeOver() { --sDepth; }
  TakeOver(const TakeOver&) = delete;
  TakeOver& operator=(const TakeOver&) = delete;
  static void endChange() { sIsChanging = false; }
  static bool isAllowed() { return !sIsChanging && (sDepth == 0 || sNumber < MOST); }

private:
  static constexpr int MOST = 30; // messages within messages end at 64
  inline static int sDepth = 0;
  inline static int sNumber = 0;
  inline static bool sIsChanging = false;
};

float heightOf(const qsf::Entity& entity) {
  const auto* transform = entity.getComponent<qsf::TransformComponent>();
  return transform ? transform->getPosition().y : 0;
}

}

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

int OpenHouseComponent::stepToNextFloor() {
  switch (mCurrentFloor) {
  case 0:
    set(mLayer2, Floor::HIDDEN);
    set(mLayer3, Floor::HIDDEN);
    set(mLayer4, Floor::HIDDEN);
    set(mLayer1, Floor::SHOWN);
    break;
  case 1:
    set(mLayer1, Floor::HIDDEN);
    set(mLayer2, Floor::SHOWN);
    break;
  case 2:
    set(mLayer2, Floor::HIDDEN);
    set(mLayer3, Floor::SHOWN);
    break;
  default:
    set(mLayer3, Floor::HIDDEN);
    set(mLayer4, Floor::SHOWN);
  }
  return mCurrentFloor = mCurrentFloor == mNumberOfLayers ? 0 : mCurrentFloor + 1;
}

void OpenHouseComponent::SetLayer(int floor) {
  for (int step = 0; step < MOST_STEPS; ++step)
    if (stepToNextFloor() == floor) return;
  logInfo("OpenHouse cant access the wanted layer");
}

void OpenHouseComponent::set(const EntityIds& floor, Floor state) const {
  for (const std::uint64_t id : floor) {
    qsf::Entity* entity = getEntity().getMap().getEntityById(id);
    if (!entity) continue;
    moveLights(*entity, state);
    entity->setHidden(state == Floor::HIDDEN);
  }
}

void OpenHouseComponent::moveLights(const qsf::Entity& floorEntity, Floor state) const {
  const auto* building = floorEntity.getComponent<em5::BuildingComponent>();
  if (!building) return;
  const float houseHeight = heightOf(getEntity());
  for (const std::uint64_t id : building->getLights()) {
    const qsf::Entity* light = getEntity().getMap().getEntityById(id);
    auto* transform = light ? light->getComponent<qsf::TransformComponent>() : nullptr;
    if (!transform || !light->getComponent<qsf::LightComponent>()) continue;
    glm::vec3 position = transform->getPosition();
    // A lamp that hangs above its house goes down when its floor is hidden, one below it comes up with it again.
    if (state == Floor::SHOWN && houseHeight > position.y)
      position.y += LIFT;
    else if (state == Floor::HIDDEN && position.y > houseHeight)
      position.y -= LIFT;
    else
      continue;
    transform->setPosition(position);
  }
}

bool OpenHouseComponent::holdsEntity(std::uint64_t entityId) const {
  if (entityId == getEntityId() || entityId == mDoor) return true;
  return std::ranges::any_of(std::array{&mLayer1, &mLayer2, &mLayer3, &mLayer4, &mDefaultLayer},
                             [&](const EntityIds* ids) { return std::ranges::find(*ids, entityId) != ids->end(); });
}

qsf::Entity* OpenHouseComponent::findHouse(const qsf::Map& map, std::uint64_t entityId) {
  for (const auto* house : qsf::ComponentMapQuery(map).getAllInstances<OpenHouseComponent>())
    if (house->holdsEntity(entityId)) return &house->getEntity();
  return nullptr;
}

bool OpenHouseComponent::onStartup() {
  mStartupProxy.registerAt(em5::Messages::GAME_STARTUP_FINISHED,
                           [this](const qsf::MessageParameters&) { onGameStarted(); });
  if (mGameStarted) listenToSelection();
  return true;
}

void OpenHouseComponent::onShutdown() {
  mStartupProxy.unregister();
  mSelectionProxy.unregister();
}

void OpenHouseComponent::onGameStarted() {
  mGameStarted = true;
  becomeUnit();
  // A step comes first: a house that is to start with the floor 0 goes once round.
  for (int step = 0; step < MOST_STEPS; ++step)
    if (stepToNextFloor() == mNextFloor) break;
  listenToSelection();
  unlinkFloors();
}

void OpenHouseComponent::becomeUnit() const {
  const auto* commandable = getEntity().getComponent<em5::CommandableComponent>();
  const em5::OrderInfo* orderInfo = findOrderInfo(mOrderInfo);
  if (!commandable || !orderInfo) return;
  if (em5::Player* player = findPlayer(commandable->getPlayerId()))
    em5::SpawnUnitAction::setupCreatedEntityAsUnit(getEntity(), *orderInfo, *player);
}

void OpenHouseComponent::unlinkFloors() const {
  for (const EntityIds* floor : getFloors())
    for (const std::uint64_t id : *floor)
      if (const qsf::Entity* entity = getEntity().getMap().getEntityById(id))
        if (auto* link = entity->getComponent<qsf::LinkComponent>()) link->unlinkFromParent();
}

void OpenHouseComponent::listenToSelection() {
  mSelectionProxy.registerAt(em5::Messages::EM5_CHANGE_SELECTION,
                             [this](const qsf::MessageParameters&) { moveSelection(); });
}

void OpenHouseComponent::moveSelection() const {
  const qsf::UniqueInstance<em5::Game> game;
  if (!game || !TakeOver::isAllowed()) return;
  em5::SelectionManager& selection = *game->getSelectionManager();
  std::vector<std::uint64_t> selected;
  for (const EntityIds* floor : getFloors())
    std::ranges::copy_if(*floor, std::back_inserter(selected),
                         [&](std::uint64_t id) { return selection.isIdSelected(id); });
  if (selected.empty()) return;
  const TakeOver takeOver;
  const std::uint64_t house = getEntityId();
  for (const std::uint64_t id : selected) {
    selection.removeIdFromSelection(id);
    selection.addIdToSelection(house);
  }
  if (!getEntity().getComponent<qsf::game::SelectableComponent>()) selection.removeIdFromSelection(house);
  TakeOver::endChange();
  qsf::Qsf::instance()->getMessageSystem().emitMessage(qsf::MessageConfiguration(em5::Messages::EM5_CHANGE_SELECTION));
}

}
