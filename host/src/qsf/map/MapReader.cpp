#include "qsf/map/MapReader.h"

#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/NearNames.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/MapInternals.h"
#include "qsf/math/EulerAngles.h"
#include "qsf/prototype/ComponentReader.h"
#include "qsf/prototype/PrototypeManager.h"

#include <set>

namespace qsf {

namespace {

constexpr int GAME_EULER_ORDER = 17;
constexpr float DEGREES_TO_RADIANS = 0.017453292f;

template <class T> T& getOrCreate(Entity& entity) {
  return static_cast<T&>(*entity.getOrCreateComponentById(T::COMPONENT_ID, false));
}

glm::vec3 vectorAt(const JsonPlace& place) {
  const std::vector<float> numbers = place.asNumbers(3);
  return {numbers[0], numbers[1], numbers[2]};
}

}

void MapReader::read(const std::string& localAssetName) {
  const ProjectManager& projects = Qsf::instance()->getProjectManager();
  const BaseAsset* asset = projects.getAssetById(StringHash(localAssetName));
  if (!asset || asset->getType() != "map")
    throw LoadError(localAssetName, "",
                    "no mounted project has such a map" +
                        nearNamesHint(localAssetName, projects.getAssetNamesByType("map")));
  const std::string file = asset->getFile();
  const Json document = readJsonFile(file);
  const JsonPlace root(document, file);
  root.expectObject({"description", "size", "ground", "layers", "entities"});
  readBounds(root);
  readGround(root);
  readLayers(root);
  createStandardEntities();
  if (root.has("entities")) readEntities(root.member("entities"));
  deactivateLayers(root);
}

void MapReader::readBounds(const JsonPlace& root) {
  if (!root.has("size")) return;
  const JsonPlace place = root.member("size");
  const std::vector<float> size = place.asNumbers(2);
  if (!(size[0] > 0 && size[1] > 0)) place.fail("a map's size is above 0");
  mMap.mBounds = {-size[0] / 2, -size[1] / 2, size[0] / 2, size[1] / 2};
}

void MapReader::readGround(const JsonPlace& root) {
  if (!root.has("ground")) return;
  const JsonPlace place = root.member("ground");
  place.expectObject();
  const std::string type = place.member("type").asText();
  const auto number = [&](const char* key) { return static_cast<float>(place.member(key).asNumber()); };
  Ground& ground = mMap.getInternals().ground;
  if (type == "flat") {
    place.expectObject({"type", "height"});
    ground.low = ground.high = number("height");
  } else if (type == "step") {
    place.expectObject({"type", "at", "low", "high"});
    ground = {number("low"), number("high"), number("at")};
  } else {
    place.member("type").fail("unknown kind of ground \"" + type + "\"; there are \"flat\" and \"step\"");
  }
}

void MapReader::readLayers(const JsonPlace& root) {
  if (!root.has("layers")) return;
  const JsonPlace layers = root.member("layers");
  layers.expectArray();
  auto& list = mMap.getInternals().layers;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    const JsonPlace layer = layers.element(i);
    layer.expectObject({"name", "active"});
    const std::string name = layer.member("name").asText();
    const bool isTaken =
        std::any_of(list.begin(), list.end(), [&](const auto& other) { return other->getName() == name; });
    if (isTaken || name.empty())
      layer.member("name").fail(name.empty() ? "a layer's name is empty"
                                             : "there are two layers named \"" + name + "\"");
    if (layer.has("active")) layer.member("active").asBool();
    list.push_back(std::make_unique<Layer>(static_cast<std::uint32_t>(list.size()), name));
  }
}

void MapReader::createStandardEntities() {
  Entity& core = *mMap.createEntity(Map::CORE_ENTITY_ID);
  core.getOrCreateComponentById(StringHash("qsf::PhysicsWorldComponent"), false);
  core.getOrCreateComponentById(StringHash("qsf::game::TimeOfDayComponent"), false);
  Entity& camera = *mMap.createEntity(Map::CAMERA_ENTITY_ID);
  // It stands high over a corner, where no search for units comes upon it.
  constexpr float CAMERA_HEIGHT = 100;
  getOrCreate<TransformComponent>(camera).setPosition({mMap.mBounds.minimumX, CAMERA_HEIGHT, mMap.mBounds.minimumZ});
  getOrCreate<MetadataComponent>(camera).setName("Camera");
  camera.getOrCreateComponentById(StringHash("qsf::CameraComponent"), false);
}

Entity& MapReader::createFromPrefab(const JsonPlace& place, std::uint64_t id) {
  const JsonPlace prefabPlace = place.member("prefab");
  const std::string name = prefabPlace.asText();
  const Prefab* prefab = Qsf::instance()->getMainPrototypeManager().getPrefabByLocalAssetId(StringHash(name));
  if (!prefab)
    prefabPlace.fail("no mounted project has a prefab \"" + name + "\"" +
                     nearNamesHint(name, Qsf::instance()->getProjectManager().getAssetNamesByType("prefab")));
  return *mMap.createObjectFromPrefab(*prefab, id);
}

Entity& MapReader::createEntity(const JsonPlace& place) {
  place.expectObject(
      {"id", "prefab", "name", "description", "position", "rotation", "scale", "hidden", "layer", "components"});
  const std::uint64_t id = place.member("id").asId();
  if (id <= Map::CAMERA_ENTITY_ID) { // the map's own entities are there; a file may set them up
    if (place.has("prefab")) place.member("prefab").fail("the entities 0 (core) and 1 (camera) have no prefab");
    return *mMap.getEntityById(id);
  }
  if (mMap.isIdTaken(id)) place.member("id").fail("there are two entities with the id " + std::to_string(id));
  if (id == UNINITIALIZED_ID) place.member("id").fail("this id stands for no entity");
  if (place.has("prefab")) return createFromPrefab(place, id);
  Entity& entity = *mMap.createEntity(id);
  getOrCreate<TransformComponent>(entity);
  getOrCreate<MetadataComponent>(entity);
  return entity;
}

void MapReader::readPlacement(const JsonPlace& place, Entity& entity) {
  if (place.has("name")) getOrCreate<MetadataComponent>(entity).setName(place.member("name").asText());
  if (place.has("description"))
    getOrCreate<MetadataComponent>(entity).setDescription(place.member("description").asText());
  if (place.has("position")) getOrCreate<TransformComponent>(entity).setPosition(vectorAt(place.member("position")));
  if (place.has("rotation"))
    getOrCreate<TransformComponent>(entity).setRotation(
        EulerAngles::eulerToQuaternion(vectorAt(place.member("rotation")) * DEGREES_TO_RADIANS, GAME_EULER_ORDER));
  if (place.has("scale")) getOrCreate<TransformComponent>(entity).setScale(vectorAt(place.member("scale")));
  if (place.has("hidden")) entity.setHidden(place.member("hidden").asBool());
  if (!place.has("layer")) return;
  std::vector<std::string> names;
  const std::string wanted = place.member("layer").asText();
  for (const auto& layer : mMap.getInternals().layers) {
    if (layer->getName() == wanted) return entity.setLayerId(layer->getId());
    names.push_back(layer->getName());
  }
  place.member("layer").fail("the map has no layer \"" + wanted + "\"" + nearNamesHint(wanted, names));
}

void MapReader::readEntities(const JsonPlace& entities) {
  entities.expectArray();
  std::vector<Entity*> made;
  std::set<std::uint64_t> ids;
  for (std::size_t i = 0; i < entities.size(); ++i) {
    made.push_back(&createEntity(entities.element(i)));
    if (!ids.insert(made.back()->getId()).second)
      entities.element(i).member("id").fail("there are two entities with the id " +
                                            std::to_string(made.back()->getId()));
    readPlacement(entities.element(i), *made.back());
  }
  // Components come when all entities stand, so that a link may name an entity further down.
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const JsonPlace place = entities.element(i);
    if (!place.has("components")) continue;
    readComponents(place.member("components"), *made[i]);
    const JsonPlace components = place.member("components");
    if (!components.has("qsf::LinkComponent") || !components.member("qsf::LinkComponent").has("ParentId")) continue;
    const JsonPlace parent = components.member("qsf::LinkComponent").member("ParentId");
    if (made[i]->getComponent<LinkComponent>()->getPropertyAsString("ParentId") !=
        (parent.getValue().is_string() ? parent.asText() : std::to_string(parent.asId())))
      parent.fail("this entity cannot be the parent: it doesn't exist or hangs below its own child");
  }
}

void MapReader::deactivateLayers(const JsonPlace& root) {
  if (!root.has("layers")) return;
  const JsonPlace layers = root.member("layers");
  for (std::size_t i = 0; i < layers.size(); ++i)
    if (const JsonPlace layer = layers.element(i); layer.has("active") && !layer.member("active").asBool())
      LayerManager::deactivate(mMap, *mMap.getInternals().layers[i + 1]);
}

}
