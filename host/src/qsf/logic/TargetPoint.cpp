#include "qsf/logic/TargetPoint.h"

namespace qsf::logic {

namespace {

constexpr float ROUNDING = 1e-3f;

}

glm::vec3 TargetPoint::getDestination(const glm::vec3& from) const {
  const glm::vec3 place = mIgnoreHeight ? glm::vec3(mPosition.x, from.y, mPosition.z) : mPosition;
  const glm::vec3 back = from - place;
  const float distance = glm::length(back);
  if (!(mStandOff > 0) || !(distance > 0)) return place;
  return distance > mStandOff ? place + back * (mStandOff / distance) : from;
}

bool TargetPoint::isReachedAt(const glm::vec3& position) const {
  // A place that isn't a number is nowhere, and so is reached from the start.
  return !(glm::distance(position, getDestination(position)) > mTolerance + ROUNDING);
}

}
