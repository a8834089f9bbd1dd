#include "qsf/logic/TargetPointProvider.h"

#include "qsf/map/Entity.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>

namespace qsf::logic {

namespace {

constexpr float GAP = 0.5f;               // units between the two boxes
constexpr float LARGEST_CLEARANCE = 3.5f; // from the edge to the mover's middle; within reach

/// Middle and half extent of an entity's box in the ground plane, in its own directions.
struct GroundPlan {
  glm::vec2 middle{0, 0};
  glm::vec2 half{0, 0};
};

GroundPlan groundPlanOf(const Entity& entity) {
  const auto* box = entity.getComponent<BulletCollisionComponent>();
  if (!box) return {};
  return {{box->getOffset().x, box->getOffset().z}, {box->getSize().x / 2, box->getSize().z / 2}};
}

glm::quat headingOnly(const glm::quat& rotation) {
  const glm::quat heading(rotation.w, 0, rotation.y, 0);
  return glm::length(heading) > 0 ? glm::normalize(heading) : glm::quat(1, 0, 0, 0);
}

/// Where the mover stands, seen from the middle of the target's box, in the box's own directions.
glm::vec2 placeInGroundPlan(Entity& mover, Entity& target, const GroundPlan& box) {
  const EntityHelper helper(target);
  const glm::vec3 way = EntityHelper(mover).getPosition() - helper.getPosition();
  const glm::vec3 local = glm::conjugate(headingOnly(helper.getRotation())) * way;
  return glm::vec2(local.x, local.z) - box.middle;
}

/// Where to stand, seen as above.
glm::vec2 placeAtSides(const glm::vec2& from, const glm::vec2& half, float clearance) {
  const float side = from.x < 0 ? -1.0f : 1.0f;
  return {side * (half.x + clearance), glm::clamp(from.y, -half.y, half.y)};
}

glm::vec2 placeAtNearestEdge(const glm::vec2& from, const glm::vec2& half, float clearance) {
  const glm::vec2 edge = glm::clamp(from, -half, half);
  const float distance = glm::distance(from, edge);
  if (distance > clearance) return edge + (from - edge) * (clearance / distance);
  if (distance > 0) return from;
  // It stands inside the box: out by the shortest way.
  if (half.x - std::abs(from.x) < half.y - std::abs(from.y)) return placeAtSides(from, half, clearance);
  const float end = from.y < 0 ? -1.0f : 1.0f;
  return {from.x, end * (half.y + clearance)};
}

}

static const DeclaredClass<TargetPointProvider> declared;

void TargetPointProvider::declareCamp() {
  camp::Class::declare<TargetPointProvider>("qsf::logic::TargetPointProvider").base<Object>().constructor0();
}

std::unique_ptr<TargetPointProvider> TargetPointProvider::createById(StringHash targetPointId) {
  return ClassRegistry::createObject<TargetPointProvider>(targetPointId);
}

bool TargetPointProvider::isWithinReach(Entity& mover, Entity& target) {
  const GroundPlan box = groundPlanOf(target);
  const glm::vec2 from = placeInGroundPlan(mover, target, box);
  return glm::distance(from, glm::clamp(from, -box.half, box.half)) < REACH;
}

TargetPoint TargetPointProvider::computeTargetPoint(Entity& mover, Entity& target) const {
  return TargetPoint(getPlaceBeside(mover, target, Edge::NEAREST));
}

glm::vec3 TargetPointProvider::getPlaceBeside(Entity& mover, Entity& target, Edge edge) {
  const EntityHelper helper(target);
  const glm::quat heading = headingOnly(helper.getRotation());
  const GroundPlan box = groundPlanOf(target);
  const float clearance = std::min(glm::length(groundPlanOf(mover).half) + GAP, LARGEST_CLEARANCE);
  const glm::vec2 from = placeInGroundPlan(mover, target, box);
  const glm::vec2 place = box.middle + (edge == Edge::NEAREST ? placeAtNearestEdge(from, box.half, clearance)
                                                              : placeAtSides(from, box.half, clearance));
  return helper.getPosition() + heading * glm::vec3(place.x, 0, place.y);
}

}
