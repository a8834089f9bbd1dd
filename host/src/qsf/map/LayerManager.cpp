#include "qsf/map/LayerManager.h"

#include "qsf/Qsf.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/map/MapInternals.h"

namespace qsf {

namespace {

std::uint64_t parentIdOf(const Entity& entity) {
  const LinkComponent* link = entity.getComponent<LinkComponent>();
  return link ? link->getParentId() : UNINITIALIZED_ID;
}

std::vector<std::uint64_t> childIdsOf(const Entity& entity) {
  std::vector<std::uint64_t> ids;
  if (const LinkComponent* link = entity.getComponent<LinkComponent>())
    for (const LinkComponent* child : link->getChildLinks())
      ids.push_back(child->getEntityId());
  return ids;
}

void linkIfBothExist(const Map& map, std::uint64_t parentId, std::uint64_t childId) {
  Entity* child = map.getEntityById(childId);
  LinkComponent* link = child ? child->getComponent<LinkComponent>() : nullptr;
  // A child that found another parent meanwhile stays there.
  if (link && !link->getParentLink() && map.getEntityById(parentId)) link->setParentId(parentId);
}

}

Layer::Layer(std::uint32_t id, std::string name) : mId(id), mName(std::move(name)) {}
Layer::~Layer() = default;

Layer& LayerManager::getBaseLayer() const { return *getMainMap().getInternals().layers.front(); }

Layer* LayerManager::getLayerById(std::uint32_t id) const {
  const auto& layers = getMainMap().getInternals().layers;
  return id < layers.size() ? layers[id].get() : nullptr;
}

Layer* LayerManager::getLayerByName(StringHash name) const {
  for (Layer* layer : getLayers())
    if (StringHash(layer->getName()) == name) return layer;
  return nullptr;
}

std::vector<Layer*> LayerManager::getLayers() const {
  std::vector<Layer*> layers;
  for (const auto& layer : getMainMap().getInternals().layers)
    layers.push_back(layer.get());
  return layers;
}

Layer* LayerManager::getLayerOfEntity(std::uint64_t id) const {
  const Map& map = getMainMap();
  if (const Entity* entity = map.getEntityById(id)) return getLayerById(entity->getLayerId());
  for (const auto& layer : map.getInternals().layers)
    for (const Layer::Resting& entry : layer->mResting)
      if (entry.entity->getId() == id) return layer.get();
  return nullptr;
}

Layer* LayerManager::createLayer(const std::string& name) {
  if (name.empty() || getLayerByName(StringHash(name))) return nullptr;
  auto& layers = getMainMap().getInternals().layers;
  layers.push_back(std::make_unique<Layer>(static_cast<std::uint32_t>(layers.size()), name));
  return layers.back().get();
}

void LayerManager::activateLayer(Layer& layer) {
  if (layer.mActive) return;
  layer.mActive = true;
  Map& map = getMainMap();
  std::vector<Layer::Resting> resting = std::exchange(layer.mResting, {});
  std::vector<std::uint64_t> ids;
  for (Layer::Resting& entry : resting) {
    ids.push_back(entry.entity->getId());
    map.putOnMap(std::move(entry.entity));
  }
  for (std::size_t i = 0; i < ids.size(); ++i) {
    linkIfBothExist(map, resting[i].parentId, ids[i]);
    for (const std::uint64_t childId : resting[i].childIds)
      linkIfBothExist(map, ids[i], childId);
  }
  for (const std::uint64_t id : ids) {
    Entity* entity = map.getEntityById(id);
    const std::vector<Component*> components = entity ? entity->getComponents() : std::vector<Component*>();
    for (Component* component : components)
      component->startup();
  }
}

void LayerManager::deactivateLayer(Layer& layer, int /*mode*/) { deactivate(getMainMap(), layer); }

void LayerManager::dropRestingEntity(std::uint64_t id) {
  for (const auto& layer : getMainMap().getInternals().layers)
    std::erase_if(layer->mResting, [id](const Layer::Resting& entry) { return entry.entity->getId() == id; });
}

void LayerManager::deactivate(Map& map, Layer& layer) {
  if (!layer.mActive || layer.getId() == 0) return;
  layer.mActive = false;
  std::vector<Layer::Resting> resting;
  for (const Entity* entity : map.getEntities())
    if (entity->getLayerId() == layer.getId()) resting.push_back({nullptr, parentIdOf(*entity), childIdsOf(*entity)});
  std::size_t next = 0;
  for (const Entity* entity : map.getEntities())
    if (entity->getLayerId() == layer.getId()) resting[next++].entity = map.takeOffMap(entity->getId());
  std::erase_if(resting, [](const Layer::Resting& entry) { return !entry.entity; });
  layer.mResting = std::move(resting);
}

}
