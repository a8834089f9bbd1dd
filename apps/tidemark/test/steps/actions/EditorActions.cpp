// Actions of the editor's user.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Editor.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/NearNames.h"
#include "qsf/map/LayerManager.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

const qsf::Layer& findLayer(const qsf::LayerManager& layers, const std::string& name) {
  if (const qsf::Layer* layer = layers.getLayerByName(qsf::StringHash(name))) return *layer;
  std::vector<std::string> names;
  for (const qsf::Layer* layer : layers.getLayers())
    names.push_back(layer->getName());
  throw NotThere(fmt::format("the map has no layer '{}'{}", name, qsf::nearNamesHint(name, names)));
}

// `select layer NAME`
Action selectLayer(WordCursor& words) {
  const std::string name = words.take("the layer's name");
  return [name](TestSession& session) {
    const qsf::Layer& layer = findLayer(session.host().getQsf().getLayerManager(), name);
    requireEditor().getSelectionSystem().getLayerSelectionManager().setSelection({layer.getId()});
  };
}

}

std::optional<Action> readEditorAction(WordCursor& words) {
  if (words.takeIf("undo")) return [](TestSession&) { requireEditor().getOperationManager().undo(); };
  if (words.takeIf("redo")) return [](TestSession&) { requireEditor().getOperationManager().redo(); };
  if (!words.peekKeyword("select") || !words.peekKeyword("layer", 1)) return std::nullopt;
  words.require("select");
  words.require("layer");
  return selectLayer(words);
}

}
