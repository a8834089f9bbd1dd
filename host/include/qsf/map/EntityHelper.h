#pragma once
#include "qsf/map/Entity.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// Short ways to what is asked of an entity most often. Made on the spot; lives no longer than the entity.
class QSF_API EntityHelper {
public:
  explicit EntityHelper(Entity& entity) : mEntity(entity) {}
  Entity& getEntity() const { return mEntity; }
  /// The origin and no rotation for an entity without a transform component.
  glm::vec3 getPosition() const;
  glm::quat getRotation() const;
  /// Null if the entity isn't linked below another one.
  Entity* getParent() const;
  /// Whether it is that entity or is linked below it, at whatever depth: then it moves and turns along with it.
  bool movesAlongWith(const Entity& other) const;

private:
  Entity& mEntity;
};

}
