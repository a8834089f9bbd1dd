// Expectations on entities, the selection and assets.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Selection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/Ids.h"
#include "qsf/base/NearNames.h"
#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/map/Map.h"
#include "qsf/math/Heading.h"
#include "qsf/reflection/PropertyText.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace tidemark::test {

namespace {

constexpr double DEFAULT_DISTANCE = 0.01;
constexpr double DEFAULT_ANGLE = 1;

Expectation expectEntity(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  const std::string state = words.take("exists or missing");
  if (state != "exists" && state != "missing")
    throw DirectiveError(fmt::format("'{}' is neither exists nor missing", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool exists = session.host().getQsf().getMainMap().getEntityById(session.resolve(reference)) != nullptr;
    return Verdict{exists == (state == "exists"), exists ? "it exists" : "it is missing", {}};
  };
  return expectation;
}

Expectation expectNumberOfEntities(WordCursor& words) {
  const std::uint64_t expected = words.takeId("the number of entities");
  Expectation expectation;
  expectation.check = [expected](TestSession& session) {
    const std::vector<qsf::Entity*> entities = session.host().getQsf().getMainMap().getEntities();
    const auto found =
        static_cast<std::uint64_t>(std::count_if(entities.begin(), entities.end(), [](const qsf::Entity* entity) {
          return entity->getId() != qsf::Map::CORE_ENTITY_ID && entity->getId() != qsf::Map::CAMERA_ENTITY_ID;
        }));
    return Verdict{found == expected, fmt::format("{}", found), {}};
  };
  return expectation;
}

Expectation expectSelection(WordCursor& words) {
  words.require("==");
  const std::vector<EntityReference> references = takeEntityReferences(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    std::set<std::uint64_t> wanted;
    for (const EntityReference& reference : references)
      wanted.insert(session.resolve(reference));
    const std::set<std::uint64_t> found = getSelection();
    return Verdict{
        found == wanted, found.empty() ? "nothing is selected" : fmt::format("{}", fmt::join(found, " ")), {}};
  };
  return expectation;
}

glm::vec3 positionOf(const qsf::Entity& entity) {
  return qsf::vectorFromText(readProperty(entity, {"qsf::TransformComponent", "Position"}));
}

Expectation expectPosition(WordCursor& words, const EntityReference& reference) {
  const double x = words.takeNumber("the x value"), y = words.takeNumber("the y value"),
               z = words.takeNumber("the z value");
  const double within = takeWithin(words).value_or(DEFAULT_DISTANCE);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const glm::vec3 position = positionOf(session.findEntity(session.resolve(reference)));
    const bool holds = numbersMatch(x, position.x, within) && numbersMatch(y, position.y, within) &&
                       numbersMatch(z, position.z, within);
    return Verdict{holds, fmt::format("at {}", qsf::toText(position)), {}};
  };
  return expectation;
}

Expectation expectParent(WordCursor& words, const EntityReference& reference) {
  const bool none = words.takeIf("none");
  const EntityReference parent = none ? EntityReference{qsf::UNINITIALIZED_ID, "", 0} : takeEntityReference(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const std::string uninitialized = fmt::format("{}", qsf::UNINITIALIZED_ID);
    std::string found = uninitialized;
    if (findComponent(entity, "qsf::LinkComponent")) found = readProperty(entity, {"qsf::LinkComponent", "ParentId"});
    if (found == "-1") found = uninitialized;
    return Verdict{found == fmt::format("{}", session.resolve(parent)),
                   found == uninitialized ? "no parent" : fmt::format("parent {}", found),
                   {}};
  };
  return expectation;
}

Expectation expectComponent(WordCursor& words, const EntityReference& reference, bool wanted) {
  const std::string component = words.take("the component's name");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool has = findComponent(session.findEntity(session.resolve(reference)), component) != nullptr;
    return Verdict{has == wanted, has ? "it has it" : "it lacks it", {}};
  };
  return expectation;
}

// Seen from above, by the negative z axis.
Expectation expectFacing(WordCursor& words, const EntityReference& reference) {
  const EntityReference other = takeEntityReference(words);
  const double within = takeWithin(words).value_or(DEFAULT_ANGLE);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const glm::vec3 position = positionOf(entity), target = positionOf(session.findEntity(session.resolve(other)));
    if (position.x == target.x && position.z == target.z)
      return Verdict{false, "there is no direction: the other is straight above or below", {}};
    const glm::quat rotation = qsf::quaternionFromText(readProperty(entity, {"qsf::TransformComponent", "Rotation"}));
    const double angle = std::abs(glm::degrees(qsf::getAngleToFace(position, rotation, target)));
    return Verdict{angle <= within, fmt::format("{:.3f} degrees away from it", angle), {}};
  };
  return expectation;
}

// An animation that nobody has can't be on its way.
void requireAnimation(const TestSession& session, const std::string& animation) {
  const qsf::ProjectManager& projects = session.host().getQsf().getProjectManager();
  if (!projects.getAssetById(qsf::StringHash(animation)))
    throw DirectiveError(fmt::format("there is no animation '{}'{}", animation,
                                     qsf::nearNamesHint(animation, projects.getAssetNamesByType("animation"))));
}

Expectation expectOffset(WordCursor& words, const EntityReference& reference) {
  const std::string animation = words.take("the animation's name");
  words.require("==");
  const double expected = words.takeNumber("the offset");
  const std::optional<double> within = takeWithin(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireAnimation(session, animation);
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const auto* component = entity.getComponent<qsf::MeshAnimationComponent>();
    const auto channel = component ? component->getChannel() : nullptr;
    if (!channel) return Verdict{false, "no animation plays", {}};
    const std::string playing = channel->getAnimation().getLocalAssetName();
    if (playing != animation) return Verdict{false, fmt::format("\"{}\" plays", playing), {}};
    const float offset = channel->getOffset();
    return Verdict{numbersMatch(expected, offset, within), fmt::format("{}", offset), {}};
  };
  return expectation;
}

Expectation expectAsset(WordCursor& words) {
  const std::string name = words.take("the asset's name");
  if (std::ranges::count(name, '/') < 3)
    throw DirectiveError(fmt::format("'{}' is no PROJECT/TYPE/CATEGORY/NAME", name));
  const std::string state = words.take("mounted or missing");
  if (state != "mounted" && state != "missing")
    throw DirectiveError(fmt::format("'{}' is neither mounted nor missing", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::BaseAsset* asset = session.host().getQsf().getProjectManager().getAssetById(qsf::StringHash(name));
    return Verdict{
        (asset != nullptr) == (state == "mounted"), asset ? asset->getFile() : "no mounted project has it", {}};
  };
  return expectation;
}

Expectation readEntityExpectation(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  if (words.takeIf("at")) return expectPosition(words, reference);
  if (words.takeIf("parent")) return expectParent(words, reference);
  if (words.takeIf("has")) return expectComponent(words, reference, true);
  if (words.takeIf("lacks")) return expectComponent(words, reference, false);
  if (words.takeIf("faces")) return expectFacing(words, reference);
  words.require("offset");
  return expectOffset(words, reference);
}

}

std::optional<Expectation> readWorldExpectation(WordCursor& words) {
  if (words.takeIf("entity")) return expectEntity(words);
  if (words.takeIf("entities")) return expectNumberOfEntities(words);
  if (words.takeIf("selection")) return expectSelection(words);
  if (words.takeIf("asset")) return expectAsset(words);
  if (peekEntityForm(words, {"at", "parent", "has", "lacks", "faces", "offset"})) return readEntityExpectation(words);
  return std::nullopt;
}

}
