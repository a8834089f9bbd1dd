#pragma once
#include "qsf/job/JobProxy.h"

#include <glm/gtc/quaternion.hpp>

#include <cstdint>
#include <vector>

namespace script {

/// A point of a camera track.
struct CameraTrackPoint {
  std::uint64_t entityId; ///< the entity that the camera passes
  float time;             ///< seconds to the next point
  float rotation;         ///< degrees turned on the way to the next point
};

/// Moves the player's camera along a track of entities, frame by frame. MapScriptManager makes the one instance when it
/// starts and shuts it down when it ends, so a track goes on when scripts stop.
class ScenarioCameraMovement {
public:
  ScenarioCameraMovement(const ScenarioCameraMovement&) = delete;
  ScenarioCameraMovement& operator=(const ScenarioCameraMovement&) = delete;

  /// The living instance, or null.
  static ScenarioCameraMovement* get();
  /// Makes the instance if there is none.
  static void create();
  /// Ends the track and the instance, with two lines in the log.
  static void shutdown();

  /// A track that runs goes on with the points that come.
  void clearTrack();
  void addPoint(const CameraTrackPoint& point);
  /// Begins with the first point from the next frame on. The height is added to the y of every position.
  void start(float heightOffset, const glm::quat& baseRotation);

  /// The job of each frame.
  void update(const qsf::JobArguments& arguments);

private:
  ScenarioCameraMovement() = default;
  ~ScenarioCameraMovement() = default;
  void placeCamera(std::size_t from, float fraction, float turned) const;

  std::vector<CameraTrackPoint> mTrack;
  qsf::JobProxy mJobProxy;
  glm::quat mBaseRotation{1, 0, 0, 0};
  qsf::Time mElapsed;
  float mHeightOffset = 0;
};

}
