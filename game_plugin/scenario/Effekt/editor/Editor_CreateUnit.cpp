#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/tick/TickNumber.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/gui/EmergencyGui.h"
#include "qsf/Qsf.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/DebugBoxComponent.h"
#include "qsf/component/MeshComponent.h"
#include "qsf/editor/Application.h"
#include "qsf/editor/base/BackupPrototypeOperationData.h"
#include "qsf/editor/base/CompoundOperation.h"
#include "qsf/editor/base/CreateEntityOperation.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"
#include "qsf/prototype/PrefabContent.h"
#include "qsf/prototype/PrototypeManager.h"

#include <limits>
#include <stdexcept>

namespace script {

struct Editor_CreateUnitEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "In a tick of a script only its first fault is logged.",
      "An asset's name in a string variable is logged as not found, and found all the same.",
      "Each unit is a step of its own in the editor's list, whatever the last parameter says.",
  };

  Argument localAssetId;
  Argument entityList;
  Argument number;
  Argument layer;
  bool pushEditorOperation = false; // kept in the record; it has never had an influence
};

static void read(Editor_CreateUnitEffect& effect, ParameterReader& in) {
  effect.localAssetId = in.prefab(1, "-1", "Local Asset Id", "Name of the prefab, like em5/prefab/test/tree");
  effect.entityList = in.listOut(2, "new_unit", "Entity List", "List that gets the new units");
  effect.number =
      in.number(3, "1", "Number", "How many units, 10000 at most; a fraction is dropped. They stand at 0 0 0");
  effect.layer = in.of(ParameterRole::LAYER, 4, "Current", "Layer (Current / BaseLayer / or a layername",
                       "Layer of the new units; Current is the one selected in the editor, which also stands in for a "
                       "layer that doesn't exist");
  effect.pushEditorOperation = in.flag(5, false, "push editor operation?", "Without influence");
}

/// More in one go than any map holds.
static constexpr int MOST_UNITS = 10'000;

/// Logs unless this tick of the script has had its line.
static void warnOnce(const std::string& message) {
  static std::uint64_t lastWarnedTick = std::numeric_limits<std::uint64_t>::max();
  if (lastWarnedTick == runningTick()) return;
  lastWarnedTick = runningTick();
  logInfo(message);
}

static std::uint32_t findLayerId(qsf::editor::Application& editor, const std::string& text) {
  const std::uint32_t selected = editor.getSelectionSystem().getLayerSelectionManager().getSelectedId();
  if (text == "Current") return selected;
  const qsf::LayerManager& layers = qsf::Qsf::instance()->getLayerManager();
  if (text == "BaseLayer") return layers.getBaseLayer().getId();
  if (const qsf::Layer* layer = layers.getLayerByName(qsf::StringHash(text))) return layer->getId();
  if (hints::isOn()) hintUnknownLayer(text);
  return selected;
}

static void hintNoPrefab(const std::string& name) {
  if (qsf::AssetProxy(name).getAsset())
    hints::tell(HintKind::ASSET, "the asset \"" + name + "\" is no prefab");
  else
    hintMissingAsset(name);
}

/// Null, too, if the prefab's file is faulty, which is logged.
static const qsf::Prefab* findPrefab(const std::string& name) {
  try {
    const qsf::Prefab* prefab =
        qsf::Qsf::instance()->getMainPrototypeManager().getPrefabByLocalAssetId(qsf::StringHash(name));
    if (!prefab && hints::isOn()) hintNoPrefab(name);
    return prefab;
  } catch (const std::exception& fault) {
    logError(fault.what());
    return nullptr;
  }
}

/// The step that puts the content's entities on the layer.
static std::unique_ptr<qsf::editor::base::CompoundOperation> makeStep(const qsf::PrefabContent& content,
                                                                      std::uint32_t layerId) {
  auto step = std::make_unique<qsf::editor::base::CompoundOperation>();
  for (const auto& prototype : content.getPrototypes()) {
    auto backup = std::make_unique<qsf::editor::base::BackupPrototypeOperationData>(*prototype);
    auto creation = std::make_unique<qsf::editor::base::CreateEntityOperation>(prototype->getId(), layerId, *backup);
    step->addOperationData(std::move(backup));
    if (step->getOperations().empty()) step->setText(creation->getText());
    step->pushBackOperation(std::move(creation));
  }
  return step;
}

/// Id of the unit's main entity.
static std::uint64_t createUnit(qsf::editor::Application& editor, const qsf::Prefab& prefab, const glm::vec3& position,
                                std::uint32_t layerId) {
  qsf::PrefabContent content;
  content.cloneFromPrototype(prefab, qsf::PrefabContent::buildIdMatchingMapWithGeneratedIds(prefab, qsf::getMainMap()));
  const qsf::BaseAsset* asset = qsf::AssetProxy(prefab.getLocalAssetName()).getAsset();
  content.processForEntityInstancing(asset ? &asset->getName() : nullptr, position);
  qsf::Prototype& main = *content.getMainPrototype();
  if (main.getComponent<qsf::MeshComponent>()) main.destroyComponentById(qsf::DebugBoxComponent::COMPONENT_ID);
  const std::uint64_t id = main.getId();
  editor.getOperationManager().push(makeStep(content, layerId), true);
  return id;
}

static void run(const Editor_CreateUnitEffect& effect, ScenarioHandler& handler) {
  if (qsf::UniqueInstance<em5::EmergencyGui>())
    return warnOnce("you tried to call Editor_CreateUnitEffect but you are not in editor");
  const qsf::UniqueInstance<qsf::editor::Application> editor;
  if (!editor) return;
  const std::string& raw = effect.localAssetId.text();
  if (!qsf::AssetProxy(raw).getAsset())
    warnOnce("Editor_CreateUnitEffect: you tried to create a prefab but your asset name was not found " + raw);
  for (int i = 0; i < truncateToInt(handler.ResolveFloat(effect.number)); ++i) {
    if (i == MOST_UNITS) throw std::runtime_error("more than " + std::to_string(MOST_UNITS) + " units at once");
    const std::string name = handler.ResolveString(effect.localAssetId);
    const std::uint32_t layerId = findLayerId(*editor, handler.ResolveString(effect.layer));
    const qsf::Prefab* prefab = findPrefab(name);
    if (!prefab) return; // nor will it be there for the next one
    const std::uint64_t id = createUnit(*editor, *prefab, glm::vec3(0), layerId);
    if (findEntity(id)) handler.AddToEntityList(effect.entityList, id);
  }
}

EFFECT(Editor_CreateUnit, "Editor", "Create a unit but in editor")

}
