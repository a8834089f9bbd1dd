#include "apps/tidemark/test/steps/Steps.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace tidemark::test {

// The themes of actions and of expectations, in the order in which they are asked. Each has a source of its own,
// <Theme>Actions.cpp or <Theme>Expectations.cpp, whose reader returns nothing if the next word isn't its own.
#define ACTION_THEMES(THEME)                                                                                           \
  THEME(Store)                                                                                                         \
  THEME(Editor)                                                                                                        \
  THEME(World)                                                                                                         \
  THEME(Message)                                                                                                       \
  THEME(Command)                                                                                                       \
  THEME(Device)                                                                                                        \
  THEME(Gamepad)                                                                                                       \
  THEME(Document)                                                                                                      \
  THEME(Event)                                                                                                         \
  THEME(Network)                                                                                                       \
  THEME(Lifecycle)
#define EXPECTATION_THEMES(THEME)                                                                                      \
  THEME(Log)                                                                                                           \
  THEME(Hint)                                                                                                          \
  THEME(File)                                                                                                          \
  THEME(Document)                                                                                                      \
  THEME(Command)                                                                                                       \
  THEME(Unit)                                                                                                          \
  THEME(Message)                                                                                                       \
  THEME(Store)                                                                                                         \
  THEME(Trigger)                                                                                                       \
  THEME(World)                                                                                                         \
  THEME(Layer)                                                                                                         \
  THEME(Editor)                                                                                                        \
  THEME(Call)                                                                                                          \
  THEME(Plan)                                                                                                          \
  THEME(Overlay)                                                                                                       \
  THEME(Bone)                                                                                                          \
  THEME(Event)                                                                                                         \
  THEME(Network)                                                                                                       \
  THEME(Property) // the last: it takes whatever else stands behind an entity

#define DECLARE_ACTIONS(NAME) std::optional<Action> read##NAME##Action(WordCursor& words);
ACTION_THEMES(DECLARE_ACTIONS)
#define DECLARE_EXPECTATIONS(NAME) std::optional<Expectation> read##NAME##Expectation(WordCursor& words);
EXPECTATION_THEMES(DECLARE_EXPECTATIONS)

namespace {

#define ACTION_READER(NAME) read##NAME##Action,
constexpr std::optional<Action> (*ACTION_READERS[])(WordCursor&) = {ACTION_THEMES(ACTION_READER)};
#define EXPECTATION_READER(NAME) read##NAME##Expectation,
constexpr std::optional<Expectation> (*EXPECTATION_READERS[])(WordCursor&) = {EXPECTATION_THEMES(EXPECTATION_READER)};

// `failure TEXT of EXPECTATION`: that one fails, and what was found instead holds the text.
Expectation expectFailure(WordCursor& words) {
  const std::string text = words.take("a text of what is found");
  words.require("of");
  Expectation expectation = readExpectation(words);
  // Lines and hints that it names aren't expected to be there.
  expectation.logs.clear();
  expectation.hints.clear();
  expectation.check = [text, check = std::move(expectation.check)](TestSession& session) {
    Verdict verdict = TestSession::judge([&] { return check(session); });
    verdict.found = fmt::format("{}: {}", verdict.holds ? "it holds" : "it fails", verdict.found);
    verdict.holds = !verdict.holds && textContained(text, verdict.found);
    return verdict;
  };
  return expectation;
}

}

Action readAction(WordCursor& words) {
  for (const auto reader : ACTION_READERS) {
    if (auto action = reader(words)) {
      words.requireEnd();
      return std::move(*action);
    }
  }
  throw DirectiveError(words.atEnd() ? "an action is missing" : fmt::format("unknown action '{}'", words.peek()->text));
}

Expectation readExpectation(WordCursor& words) {
  if (words.takeIf("failure")) return expectFailure(words);
  for (const auto reader : EXPECTATION_READERS) {
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

std::string takeJsonPath(WordCursor& words) {
  const Word* next = words.peek(1);
  const bool isSize = words.peekKeyword("size") && next && !next->quoted && parseId(next->text);
  return isSize ? std::string() : words.take("a path");
}

std::optional<std::string> jsonPathBeforeSize(const std::string& path) {
  constexpr std::string_view SIZE = "size";
  if (path == SIZE) return std::string();
  if (!path.ends_with(".size")) return std::nullopt;
  return path.substr(0, path.size() - SIZE.size() - 1);
}

bool atTimes(const WordCursor& words) {
  return (words.peekKeyword("never") && words.remaining() == 1) ||
         (words.peekKeyword("times", 1) && words.remaining() == 2);
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

bool peekEntityForm(const WordCursor& words, std::initializer_list<std::string_view> keywords) {
  return words.peek() && parseEntityReference(words.peek()->text) &&
         std::ranges::any_of(keywords, [&](std::string_view keyword) { return words.peekKeyword(keyword, 1); });
}

bool Comparison::holds(double found) const {
  const auto a = static_cast<float>(found), b = static_cast<float>(expected);
  if (operation == "==" || operation == "!=") return numbersMatch(expected, found, within) == (operation == "==");
  return operation == "<" ? a < b : operation == "<=" ? a <= b : operation == ">" ? a > b : a >= b;
}

Comparison takeComparison(WordCursor& words) {
  static const std::vector<std::string> OPERATORS = {"==", "!=", "<", "<=", ">", ">="};
  Comparison comparison;
  comparison.operation = words.take("an operator");
  if (std::ranges::find(OPERATORS, comparison.operation) == OPERATORS.end())
    throw DirectiveError(fmt::format("'{}' is no operator; there are == != < <= > >=", comparison.operation));
  comparison.expected = words.takeNumber("the expected number");
  comparison.within = takeWithin(words);
  if (comparison.within && comparison.operation != "==" && comparison.operation != "!=")
    throw DirectiveError("'within' goes with == and !=");
  return comparison;
}

bool numbersMatch(double expected, double found, std::optional<double> within) {
  if (std::isnan(expected) || std::isnan(found)) return std::isnan(expected) && std::isnan(found);
  if (static_cast<float>(expected) == static_cast<float>(found)) return true;
  return within && std::abs(expected - found) <= *within;
}

}
