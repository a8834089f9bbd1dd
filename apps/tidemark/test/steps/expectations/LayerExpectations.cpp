// Expectations on the map's layers.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/NearNames.h"
#include "qsf/map/LayerManager.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

qsf::Layer& findLayer(const TestSession& session, const std::string& name) {
  const qsf::LayerManager& layers = session.host().getQsf().getLayerManager();
  if (qsf::Layer* layer = layers.getLayerByName(qsf::StringHash(name))) return *layer;
  std::vector<std::string> names;
  for (const qsf::Layer* layer : layers.getLayers())
    names.push_back(layer->getName());
  throw NotThere(fmt::format("the map has no layer '{}'{}", name, qsf::nearNamesHint(name, names)));
}

// `layer NAME active|inactive`
Expectation expectLayerState(WordCursor& words) {
  const std::string name = words.take("the layer's name");
  const std::string state = words.take("active or inactive");
  if (state != "active" && state != "inactive")
    throw DirectiveError(fmt::format("'{}' is neither active nor inactive", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool active = findLayer(session, name).isActive();
    return Verdict{active == (state == "active"), active ? "it is active" : "it is inactive", {}};
  };
  return expectation;
}

// `ID layer NAME`
Expectation expectLayerOf(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  words.require("layer");
  const std::string name = words.take("the layer's name");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::uint64_t id = session.resolve(reference);
    const qsf::Layer* found = session.host().getQsf().getLayerManager().getLayerOfEntity(id);
    if (!found) throw NotThere(fmt::format("there is no entity {}", id));
    return Verdict{found == &findLayer(session, name), fmt::format("layer '{}'", found->getName()), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readLayerExpectation(WordCursor& words) {
  if (words.takeIf("layer")) return expectLayerState(words);
  if (peekEntityForm(words, {"layer"})) return expectLayerOf(words);
  return std::nullopt;
}

}
