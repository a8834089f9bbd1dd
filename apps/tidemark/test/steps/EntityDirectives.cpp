// `@entity` and `@set`: what stands on the map before the game starts.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"
#include "qsf/math/EulerAngles.h"
#include "qsf/reflection/PropertyText.h"

#include <fmt/format.h>
#include <glm/trigonometric.hpp>

namespace tidemark::test {

namespace {

constexpr int GAME_ANGLE_ORDER = 17;
constexpr std::string_view TEST_PREFABS = "em5/prefab/test/";
const std::string TRANSFORM = "qsf::TransformComponent";
const std::string METADATA = "qsf::MetadataComponent";

// A component to add, or a property to set on it.
struct Addition {
  std::string component;
  std::string property; ///< empty: only the component
  std::string value;
};

struct EntityPlan {
  std::uint64_t id = 0;
  std::string prefab;
  std::vector<Addition> additions; ///< in the order of their words
};

std::string takeVector(WordCursor& words) {
  const double x = words.takeNumber("the x value"), y = words.takeNumber("the y value"),
               z = words.takeNumber("the z value");
  return qsf::toText(glm::vec3(x, y, z));
}

std::string takeRotation(WordCursor& words) {
  const double x = words.takeNumber("the x angle"), y = words.takeNumber("the y angle"),
               z = words.takeNumber("the z angle");
  return qsf::toText(qsf::EulerAngles::eulerToQuaternion(glm::radians(glm::vec3(x, y, z)), GAME_ANGLE_ORDER));
}

Addition takeComponent(WordCursor& words) {
  const std::string word = words.take("a component behind 'with'");
  const std::size_t equals = word.find('=');
  if (equals == std::string::npos) return {word, "", ""};
  const PropertyName name = parsePropertyName(std::string_view(word).substr(0, equals));
  return {name.component, name.property, word.substr(equals + 1)};
}

EntityPlan takeEntity(WordCursor& words) {
  EntityPlan plan;
  plan.id = words.takeId("the entity's id");
  while (!words.atEnd()) {
    if (words.takeIf("prefab"))
      plan.prefab = words.take("the prefab's name");
    else if (words.takeIf("name"))
      plan.additions.push_back({METADATA, "Name", words.take("the entity's name")});
    else if (words.takeIf("description"))
      plan.additions.push_back({METADATA, "Description", words.take("the entity's description")});
    else if (words.takeIf("at"))
      plan.additions.push_back({TRANSFORM, "Position", takeVector(words)});
    else if (words.takeIf("rotated"))
      plan.additions.push_back({TRANSFORM, "Rotation", takeRotation(words)});
    else if (words.takeIf("with"))
      plan.additions.push_back(takeComponent(words));
    else
      throw DirectiveError(fmt::format(
          "unexpected word '{}'; an entity has prefab, name, description, at, rotated, with", words.peek()->text));
  }
  return plan;
}

void makeEntity(qsf::Map& map, const EntityPlan& plan) {
  // The core and the camera are there: the directive says what else they have.
  if (plan.id <= qsf::Map::CAMERA_ENTITY_ID && plan.prefab.empty()) return;
  if (map.getEntityById(plan.id)) throw DirectiveError(fmt::format("the map has an entity {} already", plan.id));
  if (plan.prefab.empty()) {
    qsf::Entity* entity = map.createEntity(plan.id);
    if (!entity) throw DirectiveError(fmt::format("no entity can be made with the id {}", plan.id));
    addComponent(*entity, TRANSFORM);
    addComponent(*entity, METADATA);
    return;
  }
  const std::string asset =
      plan.prefab.find('/') == std::string::npos ? std::string(TEST_PREFABS) + plan.prefab : plan.prefab;
  if (!map.createObjectByLocalPrefabAssetId(qsf::StringHash(asset), plan.id))
    throw DirectiveError(fmt::format("there is no prefab '{}'", asset));
}

}

EntityDirective readEntityDirective(WordCursor& words) {
  const EntityPlan plan = takeEntity(words);
  EntityDirective directive;
  directive.make = [plan](TestSession& session) { makeEntity(session.host().getQsf().getMainMap(), plan); };
  directive.equip = [plan](TestSession& session) {
    qsf::Entity& entity = session.findEntity(plan.id);
    for (const Addition& addition : plan.additions) {
      addComponent(entity, addition.component);
      if (!addition.property.empty()) writeProperty(entity, {addition.component, addition.property}, addition.value);
    }
  };
  return directive;
}

Action readSetDirective(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  const PropertyName name = parsePropertyName(words.take("COMPONENT.PROPERTY"));
  const PropertyValue value = takePropertyValue(words, "the value");
  words.requireEnd();
  return [=](TestSession& session) {
    qsf::Entity& entity = session.findEntity(session.resolve(reference));
    // No prefab gives the map's own entities what they lack.
    if (entity.getId() <= qsf::Map::CAMERA_ENTITY_ID) addComponent(entity, name.component);
    writeProperty(entity, name, resolveValue(session, value));
  };
}

}
