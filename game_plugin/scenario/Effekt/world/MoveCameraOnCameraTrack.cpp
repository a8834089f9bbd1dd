#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/camera/ScenarioCameraMovement.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <stdexcept>

namespace script {

struct MoveCameraOnCameraTrackEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Too few or too many times are told only if there is one rotation less than entities. Otherwise the track has a "
      "point for each time and one more, and the rest of the entities is left out.",
      "If there are fewer entities or rotations than points, the script's tick ends with an error.",
      "While an entity is missing the camera stands still until the time of that stretch is over.",
  };

  Argument entityList;
  Argument times;
  Argument rotations;
  Argument heightOffset;
  Argument standardRotation;
  Argument roll;
};

static void read(MoveCameraOnCameraTrackEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that the camera passes, in this order");
  effect.times = in.text(2, "0 1", "Times", "Seconds from each entity to the next, with blanks between");
  effect.rotations = in.text(3, "0 0", "Rotation", "Degrees that the camera turns on the way to the next entity");
  effect.heightOffset = in.number(4, "20", "PositionOffsetY", "Height of the camera above the entities");
  effect.standardRotation = in.number(5, "0", "StandartRotation", "Heading of the camera at the start, in degrees");
  effect.roll = in.number(6, "-40", "Roll", "How far the camera looks up, in degrees; below 0 it looks down");
}

/// The numbers of a text, and a 0 for the last point, from which there is no way on.
static std::vector<float> numbersOf(ScenarioHandler& handler, const Argument& argument) {
  std::vector<float> numbers;
  for (const std::string& part : splitParts(handler, argument))
    numbers.push_back(handler.ResolveFloat(part));
  numbers.push_back(0);
  return numbers;
}

template <class List> static auto elementOf(const List& list, std::size_t index) {
  if (index >= list.size()) throw std::out_of_range("invalid vector<T> subscript");
  return list[index];
}

static bool fillTrack(const MoveCameraOnCameraTrackEffect& effect, ScenarioHandler& handler,
                      ScenarioCameraMovement& movement) {
  movement.clearTrack();
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  const std::vector<float> times = numbersOf(handler, effect.times);
  const std::vector<float> rotations = numbersOf(handler, effect.rotations);
  if (times.size() != ids.size() && rotations.size() == ids.size()) {
    logInfo("MoveCameraOnCameraTrack: Amout of time entrys-1 is not the same as the amount of entities on the list: " +
            std::to_string(ids.size()) + " != " + std::to_string(times.size()));
    return false;
  }
  for (std::size_t i = 0; i < times.size(); ++i)
    movement.addPoint({elementOf(ids, i), times[i], elementOf(rotations, i)});
  return true;
}

static void run(const MoveCameraOnCameraTrackEffect& effect, ScenarioHandler& handler) {
  ScenarioCameraMovement* movement = ScenarioCameraMovement::get();
  if (!movement || !fillTrack(effect, handler, *movement)) return;
  const float height = handler.ResolveFloat(handler.ResolveString(effect.heightOffset));
  const glm::vec3 degrees(handler.ResolveFloat(effect.standardRotation), handler.ResolveFloat(effect.roll), 0);
  logInfo(effect.roll.text() + " " + effect.standardRotation.text());
  movement->start(height, rotationFromDegrees(degrees));
}

EFFECT(MoveCameraOnCameraTrack, "General", "Moves the camera along a track of entities")

}
