#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "qsf/Qsf.h"
#include "qsf/map/LayerManager.h"

namespace script {

struct ActivateLayerEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The layer \"Base\" is always active and can't be switched off.",
  };

  bool enable = true;
  Argument layer;
};

static void read(ActivateLayerEffect& effect, ParameterReader& in) {
  effect.enable = in.flag(1, true, "Enable", "false takes the layer's entities off the map");
  effect.layer = in.of(ParameterRole::LAYER, 2, "unknown_layer", "Layername", "Name of a layer of the map");
}

static void run(const ActivateLayerEffect& effect, ScenarioHandler& handler) {
  const std::string name = handler.ResolveString(effect.layer);
  qsf::LayerManager& layers = qsf::Qsf::instance()->getLayerManager();
  qsf::Layer* layer = layers.getLayerByName(qsf::StringHash(name));
  if (!layer) {
    if (hints::isOn()) hintUnknownLayer(name);
  } else if (effect.enable) {
    layers.activateLayer(*layer);
  } else {
    layers.deactivateLayer(*layer, 0);
  }
}

EFFECT(ActivateLayer, "General", "Puts the entities of a layer on the map, or takes them off it")

}
