#include "em5/action/GetEquipmentAction.h"

#include "em5/base/Messages.h"
#include "em5/command/EquipmentCommands.h"
#include "em5/component/CommandableComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/game/InventoryComponent.h"
#include "qsf/logic/TargetPointProvider.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

/// Whoever holds new equipment understands the command that goes with it, and no longer that of what it held.
void exchangeCommands(const qsf::Entity& person, const std::string& formerName, const std::string& name) {
  auto* commandable = person.getComponent<CommandableComponent>();
  if (!commandable) return;
  std::vector<std::uint32_t>& ids = commandable->getCommandIdsForWriting();
  const qsf::StringHash former = EquipmentCommand::findByEquipmentName(formerName);
  const qsf::StringHash id = EquipmentCommand::findByEquipmentName(name);
  if (former.isInitialized()) std::erase(ids, former.getHash());
  if (id.isInitialized() && std::ranges::find(ids, id.getHash()) == ids.end()) ids.push_back(id.getHash());
}

std::string equipmentNameOf(const qsf::Entity* entity) {
  const auto* equipment = entity ? entity->getComponent<qsf::game::EquipmentComponent>() : nullptr;
  return equipment ? equipment->getEquipmentName() : std::string();
}

}

static const qsf::DeclaredClass<GetEquipmentAction> declared;

void GetEquipmentAction::declareCamp() {
  camp::Class::declare<GetEquipmentAction>("em5::GetEquipmentAction").base<Action>().constructor0();
}

void GetEquipmentAction::init(const qsf::Entity& vehicle, const std::string& equipmentName) {
  mVehicleId = vehicle.getId();
  mEquipmentName = equipmentName;
}

void GetEquipmentAction::init(const std::string& equipmentName, int index) {
  mVehicleId = qsf::UNINITIALIZED_ID;
  mEquipmentName = equipmentName;
  mIndex = index;
}

qsf::action::Description GetEquipmentAction::describe() const {
  qsf::action::Description description{{"equipment", mEquipmentName}};
  if (mVehicleId != qsf::UNINITIALIZED_ID)
    description.emplace_back("target", std::to_string(mVehicleId));
  else
    description.emplace_back("index", std::to_string(mIndex));
  return description;
}

bool GetEquipmentAction::onStartup() {
  return !mEquipmentName.empty() && getEntity().getComponent<PersonComponent>() != nullptr;
}

qsf::action::Result GetEquipmentAction::updateAction(const qsf::Clock&) {
  if (equipmentNameOf(EntityHelper(getEntity()).getActiveEquipmentEntity()) == mEquipmentName)
    return qsf::action::RESULT_DONE;
  if (qsf::Entity* equipment = makeEquipment()) putInHand(*equipment);
  return qsf::action::RESULT_DONE;
}

qsf::Entity* GetEquipmentAction::makeEquipment() const {
  return mVehicleId == qsf::UNINITIALIZED_ID ? makeBareEquipment() : takeFromVehicle();
}

qsf::Entity* GetEquipmentAction::takeFromVehicle() const {
  qsf::Entity* vehicle = getMap().getEntityById(mVehicleId);
  if (!vehicle || !qsf::logic::TargetPointProvider::isWithinReach(getEntity(), *vehicle)) return nullptr;
  const auto* inventory = vehicle->getComponent<qsf::game::InventoryComponent>();
  const std::string item = inventory ? inventory->findItemByEquipmentName(mEquipmentName) : std::string();
  return item.empty() ? nullptr : getMap().createObjectByLocalPrefabAssetId(qsf::StringHash(item));
}

qsf::Entity* GetEquipmentAction::makeBareEquipment() const {
  qsf::Entity* equipment = getMap().createEntity();
  equipment->getOrCreateComponent<qsf::TransformComponent>();
  equipment->getOrCreateComponent<qsf::MetadataComponent>();
  equipment->getOrCreateComponent<qsf::game::EquipmentComponent>()->setEquipmentName(mEquipmentName);
  return equipment;
}

void GetEquipmentAction::putInHand(qsf::Entity& equipment) const {
  auto& person = *getEntity().getComponent<PersonComponent>();
  exchangeCommands(getEntity(), equipmentNameOf(EntityHelper(getEntity()).getActiveEquipmentEntity()),
                   equipmentNameOf(&equipment));
  getMap().destroyObjectById(person.getEquipmentId());
  if (auto* transform = equipment.getComponent<qsf::TransformComponent>())
    transform->setPosition(EntityHelper(getEntity()).getPosition());
  equipment.getOrCreateComponent<qsf::LinkComponent>()->setParentId(getEntityId());
  person.setEquipmentId(equipment.getId());
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    host->getMessageSystem().emitMessage(
        qsf::MessageConfiguration(Messages::EM5_ACTION_GET_EQUIPMENT, getEntityId(), equipment.getId()));
}

}
