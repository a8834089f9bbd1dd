#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/renderer/MaterialVariationManager.h"

namespace script {

struct SetTextureUVPositionEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A value below 0 or above 1 leaves its side as it is.",
  };

  Argument entityList;
  Argument newU;
  Argument newV;
};

static void read(SetTextureUVPositionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities whose textures move");
  effect.newU = in.number(2, "0.0", "new U value", "0 to 1, to the right");
  effect.newV = in.number(3, "0.0", "new V value", "0 to 1, downwards");
}

static void setValue(const qsf::Entity& entity, const char* property, const qsf::MaterialPropertyValue& value) {
  qsf::MaterialVariationManager::setEntityMaterialPropertyValue(entity, property, value,
                                                                qsf::getUninitialized<std::uint32_t>());
}

static void setOffset(const qsf::Entity& entity, const char* property, float offset) {
  if (offset >= 0 && offset <= 1) setValue(entity, property, qsf::MaterialPropertyValue::fromFloat(offset));
}

static void run(const SetTextureUVPositionEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](const qsf::Entity& entity) {
    setValue(entity, "UseUvScrolling", qsf::MaterialPropertyValue::fromBoolean(true));
    const float u = handler.ResolveFloat(effect.newU);
    const float v = handler.ResolveFloat(effect.newV);
    setOffset(entity, "UvOffsetU", u);
    setOffset(entity, "UvOffsetV", v);
  });
}

EFFECT(SetTextureUVPosition, "Textures", "Moves the textures on entities")

}
