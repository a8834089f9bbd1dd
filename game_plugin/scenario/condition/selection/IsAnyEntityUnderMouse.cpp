#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/map/RayMapQuery.h"
#include "qsf/Qsf.h"
#include "qsf/component/StreetCrossingComponent.h"
#include "qsf/component/StreetSectionComponent.h"
#include "qsf/component/TerrainComponent.h"

namespace script {

struct IsAnyEntityUnderMouseCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Terrain and streets don't count, whatever the description warns of.",
      "The list is emptied, too, if nothing that counts is under the mouse.",
  };

  Argument entityList;
  bool clearOldList;
};

static void read(IsAnyEntityUnderMouseCondition& condition, ParameterReader& in) {
  condition.entityList = in.listOut(1, "no_list", "EntityList", "The name of the EntityList, which should be used");
  condition.clearOldList =
      in.flag(2, true, "ClearOldList",
              "true=clear the entries of an existing list<br>false = if entityList is already existing, the "
              "entity under mouse will be added");
}

static bool isGround(const qsf::Entity& entity) {
  return entity.getComponent<qsf::TerrainComponent>() || entity.getComponent<qsf::StreetCrossingComponent>() ||
         entity.getComponent<qsf::StreetSectionComponent>();
}

static bool test(const IsAnyEntityUnderMouseCondition& condition, ScenarioHandler& handler) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui || !qsf::UniqueInstance<em5::Game>()) return false;
  if (isLeftAt(condition.entityList.text(), "no_list", "IsAnyEntityUnderMouseCondition::EntityList was not found"))
    return false;
  if (condition.clearOldList) handler.ClearEntityList(condition.entityList);

  const glm::vec2& cursor = gui->getGuiContext().getNormalizedMouseCursorPosition();
  const qsf::Entity* entity = em5::RayMapQuery(qsf::getMainMap()).getEntityUnderNormalizedMousePosition(cursor);
  if (!entity || isGround(*entity)) return false;
  handler.AddToEntityList(condition.entityList, entity->getId());
  return true;
}

CONDITION(IsAnyEntityUnderMouse, "Units",
          "Returns true if any entity is under the mouse and write the entity into an entiyList<br>ATTENTION: terrain "
          "is also an entity, Not yet supported in Editor")

}
