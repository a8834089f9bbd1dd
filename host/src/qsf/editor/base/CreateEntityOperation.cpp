#include "qsf/editor/base/CreateEntityOperation.h"

#include "qsf/Qsf.h"
#include "qsf/editor/base/BackupPrototypeOperationData.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"

namespace qsf::editor::base {

namespace {

std::string describe(std::uint64_t entityId, const std::string& name, std::uint32_t layerId) {
  const Layer* layer = Qsf::instance()->getLayerManager().getLayerById(layerId);
  return "Create entity " + std::to_string(entityId) + (name.empty() ? "" : " \"" + name + "\"") + " on layer " +
         (layer ? "\"" + layer->getName() + "\"" : std::to_string(layerId));
}

}

CreateEntityOperation::CreateEntityOperation(std::uint64_t prototypeId, std::uint32_t layerId,
                                             const BackupPrototypeOperationData& backup)
    : mEntityId(prototypeId), mLayerId(layerId), mBackup(backup) {
  setText(describe(prototypeId, backup.getName(), layerId));
}

bool CreateEntityOperation::redo() {
  Entity* entity = getMainMap().createEntity(mEntityId);
  if (!entity) return false;
  entity->setLayerId(mLayerId);
  mBackup.restore(*entity);
  const std::vector<Component*> components = entity->getComponents(); // one that starts may make others
  for (Component* component : components)
    component->startup();
  return true;
}

void CreateEntityOperation::undo() {
  getMainMap().destroyObjectById(mEntityId);
  Qsf::instance()->getLayerManager().dropRestingEntity(mEntityId);
}

}
