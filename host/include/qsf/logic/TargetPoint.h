#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <optional>

namespace qsf::logic {

/// A place to go to, and how exactly.
class QSF_API TargetPoint {
public:
  /// `ignoreHeight`: only the ground plane counts, whoever comes keeps its height. `tolerance`: units from the place at
  /// which it counts as reached. `standOff`: units before the position at which to stop. With `rotation` the one who
  /// arrives takes it up.
  explicit TargetPoint(const glm::vec3& position, bool ignoreHeight = false, float tolerance = 0, float standOff = 0,
                       const std::optional<glm::quat>& rotation = std::nullopt)
      : mPosition(position), mRotation(rotation), mTolerance(tolerance), mStandOff(standOff),
        mIgnoreHeight(ignoreHeight) {}

  const glm::vec3& getPosition() const { return mPosition; }
  const std::optional<glm::quat>& getRotation() const { return mRotation; }

  /// Where one who comes from there has to go.
  glm::vec3 getDestination(const glm::vec3& from) const;
  bool isReachedAt(const glm::vec3& position) const;

private:
  glm::vec3 mPosition;
  std::optional<glm::quat> mRotation;
  float mTolerance;
  float mStandOff;
  bool mIgnoreHeight;
};

}
