// Expectations on reflected properties of entities.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

Expectation expectValue(WordCursor& words, const EntityReference& reference, const PropertyName& name) {
  words.require("==");
  const PropertyValue expected = takePropertyValue(words, "the expected value");
  const std::optional<double> within = takeWithin(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::string found = readProperty(session.findEntity(session.resolve(reference)), name);
    return Verdict{valueMatches(resolveValue(session, expected), found, within), fmt::format("\"{}\"", found), {}};
  };
  return expectation;
}

Expectation expectNumber(WordCursor& words, const EntityReference& reference, const PropertyName& name) {
  const Comparison comparison = takeComparison(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::string found = readProperty(session.findEntity(session.resolve(reference)), name);
    const auto number = parseNumber(found);
    if (!number)
      throw DirectiveError(fmt::format("{}.{} is no number but \"{}\"; '{}' compares numbers", name.component,
                                       name.property, found, comparison.operation));
    return Verdict{comparison.holds(*number), found, {}};
  };
  return expectation;
}

Expectation expectPart(WordCursor& words, const EntityReference& reference, const PropertyName& name) {
  words.require("containing");
  const std::string text = words.take("the text that it holds");
  if (text.empty()) throw DirectiveError("an empty text is part of everything");
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::string found = readProperty(session.findEntity(session.resolve(reference)), name);
    const std::uint64_t count = countOccurrences(text, found);
    return Verdict{times.holds(count), fmt::format("{} times in \"{}\"", count, found), {}};
  };
  return expectation;
}

Expectation expectSize(WordCursor& words, const EntityReference& reference, const PropertyName& name) {
  words.require("size");
  const std::uint64_t expected = words.takeId("the number of elements");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const std::size_t found = countElements(entity, name);
    return Verdict{found == expected, fmt::format("{}: \"{}\"", found, readProperty(entity, name)), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readPropertyExpectation(WordCursor& words) {
  if (!words.peek() || !parseEntityReference(words.peek()->text)) return std::nullopt;
  const EntityReference reference = takeEntityReference(words);
  const PropertyName name = parsePropertyName(words.take("COMPONENT.PROPERTY"));
  if (words.atEnd()) throw DirectiveError("behind a property stands an operator, containing or size");
  if (words.peekKeyword("containing")) return expectPart(words, reference, name);
  if (words.peekKeyword("size")) return expectSize(words, reference, name);
  return words.peekKeyword("==") ? expectValue(words, reference, name) : expectNumber(words, reference, name);
}

}
