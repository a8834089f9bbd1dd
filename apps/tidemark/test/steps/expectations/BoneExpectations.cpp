// Expectations on the bones of an entity.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <sstream>

namespace tidemark::test {

namespace {

struct BoneReference {
  EntityReference entity;
  std::string bone;
};

qsf::BoneState findBone(TestSession& session, const BoneReference& reference) {
  const qsf::Entity& entity = session.findEntity(session.resolve(reference.entity));
  auto* animation = entity.getComponent<qsf::MeshAnimationComponent>();
  if (!animation) throw NotThere(fmt::format("entity {} has no qsf::MeshAnimationComponent", entity.getId()));
  if (const auto bone = animation->getBoneState(reference.bone)) return *bone;
  throw NotThere(fmt::format("entity {} has no bone '{}'", entity.getId(), reference.bone));
}

Expectation expectControl(const BoneReference& reference, bool manual) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool found = findBone(session, reference).manual;
    return Verdict{found == manual, found ? "manual" : "animated", {}};
  };
  return expectation;
}

/// Degrees. An angle is taken from a quaternion of floats, which costs the last digits.
constexpr double ANGLE_TOLERANCE = 0.01;

Expectation expectTurn(WordCursor& words, const BoneReference& reference) {
  const double degrees = words.takeNumber("the degrees");
  const double within = takeWithin(words).value_or(ANGLE_TOLERANCE);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const float found = findBone(session, reference).turnedBy;
    return Verdict{numbersMatch(degrees, found, within), fmt::format("turned {}", found), {}};
  };
  return expectation;
}

/// The numbers of a quoted word.
std::vector<double> takeNumbers(WordCursor& words, std::size_t count) {
  const std::string text = words.take("the expected value");
  std::istringstream stream(text);
  const std::vector<std::string> parts(std::istream_iterator<std::string>(stream), {});
  std::vector<double> numbers;
  for (const std::string& part : parts)
    if (const auto number = parseNumber(part)) numbers.push_back(*number);
  if (parts.size() != count || numbers.size() != count)
    throw DirectiveError(fmt::format("'{}' is not {} numbers", text, count));
  return numbers;
}

/// A part of the bone's state, compared number by number in the order of its text.
template <class Part>
Expectation expectPart(WordCursor& words, const BoneReference& reference, Part qsf::BoneState::*part) {
  words.require("==");
  const std::vector<double> expected = takeNumbers(words, static_cast<std::size_t>(Part::length()));
  const std::optional<double> within = takeWithin(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Part value = findBone(session, reference).*part;
    std::vector<float> found;
    if constexpr (std::is_same_v<Part, glm::quat>)
      found = {value.w, value.x, value.y, value.z};
    else
      found = {value.x, value.y, value.z};
    const bool matches =
        std::ranges::equal(expected, found, [&](double wanted, float is) { return numbersMatch(wanted, is, within); });
    return Verdict{matches, fmt::format("\"{}\"", qsf::toText(value)), {}};
  };
  return expectation;
}

Expectation readForm(WordCursor& words) {
  const EntityReference entity = takeEntityReference(words);
  words.require("bone");
  const BoneReference reference{entity, words.take("the bone's name")};
  if (words.takeIf("manual")) return expectControl(reference, true);
  if (words.takeIf("animated")) return expectControl(reference, false);
  if (words.takeIf("turned")) return expectTurn(words, reference);
  if (words.takeIf("position")) return expectPart(words, reference, &qsf::BoneState::position);
  if (words.takeIf("rotation")) return expectPart(words, reference, &qsf::BoneState::rotation);
  if (words.takeIf("scale")) return expectPart(words, reference, &qsf::BoneState::scale);
  throw DirectiveError("behind the bone's name stands position, rotation, scale, manual, animated or turned");
}

}

std::optional<Expectation> readBoneExpectation(WordCursor& words) {
  if (peekEntityForm(words, {"bone"})) return readForm(words);
  return std::nullopt;
}

}
