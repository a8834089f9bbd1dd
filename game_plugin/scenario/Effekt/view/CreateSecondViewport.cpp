#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/gui/EmergencyGui.h"
#include "em5/gui/SEKDroneScanWindow.h"
#include "qsf/Qsf.h"
#include "qsf/component/EnvironmentComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct CreateSecondViewportEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Only the first entity that exists is shown; a list of others that don't changes nothing.",
      "The mini map and the fog don't come back when the window is closed.",
  };

  Argument entityList;
};

static void read(CreateSecondViewportEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "The entity that is shown; an empty list closes the window");
}

/// Null if none of them exists.
static const qsf::Entity* findFirstEntity(const EntityIds& ids) {
  for (const std::uint64_t id : ids)
    if (const qsf::Entity* entity = findEntity(id)) return entity;
  return nullptr;
}

static void showDroneView(em5::IngameHud& hud, const qsf::Entity& entity) {
  em5::SEKDroneScanWindow& window = *hud.getSEKDroneScanWindow();
  window.showFocused();
  window.setCameraDrone(entity);
  // The mini map would lie over the picture.
  if (window.getHeatRenderer().getHeatTexture()) hud.getMiniMapWindow()->hide();
}

/// Seen from above, everything would lie in the fog.
static void pushFogAway() {
  const qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  auto* environment = core ? core->getComponent<qsf::EnvironmentComponent>() : nullptr;
  if (!environment) return;
  environment->setGroundFogStart(5000.0f);
  environment->setAtmosphereFogStart(5000.0f);
}

static void run(const CreateSecondViewportEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  em5::IngameHud* hud = gui ? gui->getIngameHud() : nullptr;
  if (!hud) return;
  if (ids.empty()) {
    hud->getSEKDroneScanWindow()->hide();
    return;
  }
  const qsf::Entity* entity = findFirstEntity(ids);
  if (!entity) return;
  showDroneView(*hud, *entity);
  pushFogAway();
}

EFFECT(CreateSecondViewport, "", "Shows an entity in the window of the drone's camera")

}
