#include "qsf/map/RayMapQuery.h"

#include "qsf/map/MapInternals.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "qsf/window/RenderWindow.h"

#include <cmath>

namespace qsf {

namespace {

btVector3 toBullet(const glm::vec3& vector) { return {vector.x, vector.y, vector.z}; }

glm::vec3 fromBullet(const btVector3& vector) {
  return {static_cast<float>(vector.x()), static_cast<float>(vector.y()), static_cast<float>(vector.z())};
}

/// Distance to the level of that height, negative if the ray never gets there.
float distanceToLevel(const Ray& ray, float height) {
  const float distance = (height - ray.origin.y) / ray.direction.y;
  return std::isfinite(distance) ? distance : -1.0f;
}

void takeNearer(RayMapQueryResult& result, const Ray& ray, float distance, float maximumDistance) {
  if (distance < 0 || distance > maximumDistance || distance >= result.distance) return;
  result.hit = true;
  result.distance = distance;
  result.position = ray.origin + ray.direction * distance;
}

}

RayMapQueryResult RayMapQuery::getGroundHit(const Ray& ray, float maximumDistance) const {
  const Ground& ground = mMap.getInternals().ground;
  RayMapQueryResult result;
  // A level counts only where it is the ground; between them the ray may meet the step's face.
  for (const bool isLow : {true, false}) {
    const float height = isLow ? ground.low : ground.high;
    const float distance = distanceToLevel(ray, height);
    if (ground.low == ground.high || (ray.origin.x + ray.direction.x * distance < ground.stepAt) == isLow)
      takeNearer(result, ray, distance, maximumDistance);
  }
  if (ground.low == ground.high) return result;
  const float distance = (ground.stepAt - ray.origin.x) / ray.direction.x;
  const float height = ray.origin.y + ray.direction.y * distance;
  if (std::isfinite(distance) && height >= std::min(ground.low, ground.high) &&
      height <= std::max(ground.low, ground.high))
    takeNearer(result, ray, distance, maximumDistance);
  return result;
}

RayMapQueryResult RayMapQuery::getFirstHit(const Ray& ray, float maximumDistance) const {
  RayMapQueryResult result = getGroundHit(ray, maximumDistance);
  const Entity* core = mMap.getCoreEntity();
  const auto* world = core ? core->getComponent<PhysicsWorldComponent>() : nullptr;
  // What lies behind the ground isn't asked for; a little more than the way there lets a box on it win.
  const float reach = std::min(maximumDistance, result.distance * 1.01f + 1.0f);
  const float length = glm::length(ray.direction * reach) + glm::length(ray.origin);
  if (!world || !std::isfinite(length)) return result;
  const btVector3 from = toBullet(ray.origin);
  const btVector3 to = toBullet(ray.origin + ray.direction * reach);
  btCollisionWorld::ClosestRayResultCallback callback(from, to);
  callback.m_collisionFilterGroup = COLLISION_ALL;
  callback.m_collisionFilterMask = COLLISION_PERSON | COLLISION_VEHICLE | COLLISION_OBJECT;
  world->getCollisionWorld().rayTest(from, to, callback);
  const float distance = static_cast<float>(callback.m_closestHitFraction) * reach;
  if (!callback.hasHit() || distance > result.distance) return result;
  result = {true, fromBullet(callback.m_hitPointWorld), distance, nullptr};
  result.entity =
      &static_cast<const BulletCollisionComponent*>(callback.m_collisionObject->getUserPointer())->getEntity();
  return result;
}

RayMapQueryResult RayMapQuery::getFirstHitByRenderWindow(const RenderWindow& window, const glm::ivec2& pixel) const {
  return getFirstHitByRenderWindowNormalizedPosition(window, window.getNormalizedPosition(pixel));
}

RayMapQueryResult RayMapQuery::getFirstHitByRenderWindowNormalizedPosition(const RenderWindow& window,
                                                                           const glm::vec2& position) const {
  const CameraComponent* camera = window.getCameraComponent();
  return camera ? getFirstHit(camera->getRay(position, window.getAspectRatio())) : RayMapQueryResult();
}

}
