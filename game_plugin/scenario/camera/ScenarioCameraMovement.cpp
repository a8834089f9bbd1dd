#include "game_plugin/scenario/camera/ScenarioCameraMovement.h"

#include "game_plugin/scenario/Log.h"

#include "em5/base/Jobs.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/math/EulerAngles.h"
#include "qsf/window/WindowApplication.h"

#include <boost/bind/bind.hpp>
#include <glm/trigonometric.hpp>

namespace script {

namespace {

constexpr int EULER_ORDER = 17;
constexpr unsigned int EACH_FRAME = 2;

ScenarioCameraMovement* theMovement = nullptr;

/// Null without a map, and for a camera without a place.
qsf::TransformComponent* findCamera() {
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  const qsf::CameraComponent* camera = application ? application->getRenderWindow().getCameraComponent() : nullptr;
  return camera ? camera->getEntity().getComponent<qsf::TransformComponent>() : nullptr;
}

glm::quat turnedBy(const glm::quat& rotation, float degrees) {
  const glm::vec3 angles = qsf::EulerAngles::quaternionToEuler(rotation, EULER_ORDER);
  return qsf::EulerAngles::eulerToQuaternion(angles + glm::vec3(glm::radians(degrees), 0, 0), EULER_ORDER);
}

}

ScenarioCameraMovement* ScenarioCameraMovement::get() { return theMovement; }

void ScenarioCameraMovement::create() {
  if (!theMovement) theMovement = new ScenarioCameraMovement;
}

void ScenarioCameraMovement::shutdown() {
  logInfo("ScenarioCameraMovement shutdown");
  delete theMovement;
  theMovement = nullptr;
  logInfo("ScenarioCameraMovement shutdown finished");
}

void ScenarioCameraMovement::clearTrack() { mTrack.clear(); }

void ScenarioCameraMovement::addPoint(const CameraTrackPoint& point) { mTrack.push_back(point); }

void ScenarioCameraMovement::start(float heightOffset, const glm::quat& baseRotation) {
  mHeightOffset = heightOffset;
  mBaseRotation = baseRotation;
  mElapsed = qsf::Time();
  mJobProxy.registerAt(em5::Jobs::ANIMATION_VEHICLE,
                       boost::bind(&ScenarioCameraMovement::update, this, boost::placeholders::_1),
                       qsf::jobs::JobConfiguration(EACH_FRAME));
}

void ScenarioCameraMovement::update(const qsf::JobArguments& arguments) {
  mElapsed += arguments.getTimePassed();
  const float time = mElapsed.getSeconds();
  float sum = 0, turned = 0;
  for (std::size_t i = 0; i < mTrack.size(); ++i) {
    const CameraTrackPoint& point = mTrack[i];
    if (time > sum + point.time) {
      sum += point.time;
      turned += point.rotation;
      continue;
    }
    if (point.time == 0) return mJobProxy.unregister();
    const float fraction = (time - sum) / point.time;
    if (i + 1 >= mTrack.size()) {
      logInfo("OVERFLOW");
      return mJobProxy.unregister();
    }
    return placeCamera(i, fraction, fraction * point.rotation + turned);
  }
  // Kept: behind the track the job stays, and the camera rests where it is.
}

void ScenarioCameraMovement::placeCamera(std::size_t from, float fraction, float turned) const {
  const qsf::Map& map = qsf::getMainMap();
  qsf::Entity* first = map.getEntityById(mTrack[from].entityId);
  qsf::Entity* second = map.getEntityById(mTrack[from + 1].entityId);
  qsf::TransformComponent* camera = findCamera();
  if (!first || !second || !camera) return;
  const glm::vec3 start = em5::EntityHelper(*first).getPosition();
  const glm::vec3 end = em5::EntityHelper(*second).getPosition();
  camera->setPosition(start + fraction * (end - start) + glm::vec3(0, mHeightOffset, 0));
  camera->setRotation(turnedBy(mBaseRotation, turned));
}

}
