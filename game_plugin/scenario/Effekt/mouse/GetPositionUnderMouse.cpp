#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"
#include "qsf/Qsf.h"
#include "qsf/map/GroundMapQuery.h"
#include "qsf/map/RayMapQuery.h"
#include "qsf/window/WindowApplication.h"

namespace script {

struct GetPositionUnderMouseEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Three numbers of six digits are written as one text, into a string variable.",
      "What stands under the mouse is passed over in height only: x and z are those of the place where it is hit, y is "
      "that of the ground there.",
  };

  Argument positionVariable;
};

static void read(GetPositionUnderMouseEffect& effect, ParameterReader& in) {
  effect.positionVariable = in.stringVariableOut(1, "no_var", "PositionVariable", "Gets \"x y z\"");
}

static glm::vec3 placeUnder(const glm::vec2& cursor, qsf::WindowApplication& application) {
  const qsf::Map& map = qsf::getMainMap();
  glm::vec3 place =
      qsf::RayMapQuery(map).getFirstHitByRenderWindowNormalizedPosition(application.getRenderWindow(), cursor).position;
  float height = 0;
  qsf::GroundMapQuery(map, -1, nullptr).getHeightAt(place, height, true);
  place.y = height;
  return place;
}

static void run(const GetPositionUnderMouseEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.positionVariable.text(), "no_var", "GetPositionUnderMouseEffect::Variable not found")) return;
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  if (!gui || !application) return;
  const glm::vec3 place = placeUnder(gui->getGuiContext().getNormalizedMouseCursorPosition(), *application);
  handler.SetStringVariable(effect.positionVariable,
                            floatToText(place.x) + " " + floatToText(place.y) + " " + floatToText(place.z));
}

EFFECT(GetPositionUnderMouse, "General", "Writes the place on the ground under the mouse into a string variable")

}
