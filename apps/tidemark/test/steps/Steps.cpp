#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

#include <cmath>

namespace tidemark::test {

Action readAction(WordCursor& words) {
  for (const auto reader : {readStoreAction, readWorldAction, readDeviceAction, readLifecycleAction}) {
    if (auto action = reader(words)) {
      words.requireEnd();
      return std::move(*action);
    }
  }
  throw DirectiveError(words.atEnd() ? "an action is missing" : fmt::format("unknown action '{}'", words.peek()->text));
}

Expectation readExpectation(WordCursor& words) {
  for (const auto reader : {readLogExpectation, readStoreExpectation, readTriggerExpectation, readWorldExpectation}) {
    if (auto expectation = reader(words)) {
      words.requireEnd();
      return std::move(*expectation);
    }
  }
  throw DirectiveError(words.atEnd() ? "an expectation is missing"
                                     : fmt::format("unknown expectation '{}'", words.peek()->text));
}

Times takeTimes(WordCursor& words) {
  if (words.takeIf("never")) return {0};
  if (!words.peekKeyword("times", 1)) return {};
  const std::uint64_t count = words.takeId("the number of times");
  words.require("times");
  return {count};
}

std::optional<double> takeWithin(WordCursor& words) {
  if (!words.takeIf("within")) return std::nullopt;
  const double epsilon = words.takeNumber("the distance behind 'within'");
  if (!(epsilon >= 0)) throw DirectiveError("the distance behind 'within' is negative");
  return epsilon;
}

std::optional<EntityReference> parseEntityReference(std::string_view text) {
  if (const auto id = parseId(text)) return EntityReference{*id, "", 0};
  const std::size_t bracket = text.rfind('[');
  if (bracket == std::string_view::npos || bracket == 0 || !text.ends_with(']')) return std::nullopt;
  const auto index = parseId(text.substr(bracket + 1, text.size() - bracket - 2));
  if (!index) return std::nullopt;
  return EntityReference{0, std::string(text.substr(0, bracket)), static_cast<std::size_t>(*index)};
}

EntityReference takeEntityReference(WordCursor& words) {
  const std::string text = words.take("an entity's id");
  if (auto reference = parseEntityReference(text)) return std::move(*reference);
  throw DirectiveError(fmt::format("'{}' is neither an id nor LIST[INDEX]", text));
}

std::vector<EntityReference> takeEntityReferences(WordCursor& words) {
  std::vector<EntityReference> references;
  while (!words.atEnd())
    references.push_back(takeEntityReference(words));
  return references;
}

bool numbersMatch(double expected, double found, std::optional<double> within) {
  if (std::isnan(expected) || std::isnan(found)) return std::isnan(expected) && std::isnan(found);
  if (static_cast<float>(expected) == static_cast<float>(found)) return true;
  return within && std::abs(expected - found) <= *within;
}

}
