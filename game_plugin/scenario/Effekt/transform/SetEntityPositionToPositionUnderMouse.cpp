#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/input/InputSystem.h"
#include "qsf/map/GroundMapQuery.h"
#include "qsf/map/RayMapQuery.h"
#include "qsf/window/RenderWindow.h"
#include "qsf/window/WindowApplication.h"

#include <optional>

namespace script {

struct SetEntityPositionToPositionUnderMouseEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The default of Precision is the name of a variable, which is 0 unless the script sets it.",
  };

  Argument entityList;
  Argument precision;
};

static void read(SetEntityPositionToPositionUnderMouseEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that follow the mouse");
  effect.precision =
      in.number(2, "no_list", "Precision", "Number or variable: entities that are no farther away stay where they are");
}

/// The place on the ground that the mouse points at; nothing without a window.
static std::optional<glm::vec3> findPlaceUnderMouse() {
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  if (!application) return std::nullopt;
  const qsf::Map& map = qsf::getMainMap();
  const glm::ivec2 pixel(qsf::Qsf::instance()->getInputSystem().getMouse().getPosition());
  glm::vec3 place = qsf::RayMapQuery(map).getFirstHitByRenderWindow(application->getRenderWindow(), pixel).position;
  float height = 0;
  qsf::GroundMapQuery(map, -1, nullptr).getHeightAt(place, height, true);
  place.y = height;
  return place;
}

static void run(const SetEntityPositionToPositionUnderMouseEffect& effect, ScenarioHandler& handler) {
  const std::optional<glm::vec3> place = findPlaceUnderMouse();
  if (!place) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    if (auto* movable = entity.getComponent<qsf::MovableComponent>()) {
      if (glm::distance(*place, movable->getPosition()) > handler.ResolveFloat(effect.precision))
        movable->moveToPosition(*place);
    } else if (auto* transform = entity.getComponent<qsf::TransformComponent>()) {
      if (glm::distance(*place, transform->getPosition()) > handler.ResolveFloat(effect.precision))
        transform->setPosition(*place);
    }
  });
}

EFFECT(SetEntityPositionToPositionUnderMouse, "Units",
       "Moves entities to the place under the mouse, for commands that drag an object along")

}
