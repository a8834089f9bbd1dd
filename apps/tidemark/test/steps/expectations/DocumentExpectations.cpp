// Expectations on documents and their elements.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Documents.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "Rocket/Core/Element.h"
#include "qsf/gui/GuiDocument.h"

#include <fmt/format.h>

#include <cstdlib>

namespace tidemark::test {

namespace {

using Rocket::Core::Element;

constexpr std::size_t SHOWN = 300; // bytes of a text in a failure

std::string shown(const std::string& text) {
  return text.size() <= SHOWN ? fmt::format("\"{}\"", text) : fmt::format("\"{}...\"", text.substr(0, SHOWN));
}

Expectation checking(const ElementReference& reference, std::function<Verdict(Element&)> check) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) { return check(requireElement(session, reference)); };
  return expectation;
}

Expectation expectDocument(WordCursor& words) {
  const std::string name = words.take("the document");
  std::string state = words.take("visible, hidden, missing or not visible");
  if (state == "not") {
    words.require("visible");
    state = "not visible";
  }
  if (state != "visible" && state != "hidden" && state != "missing" && state != "not visible")
    throw DirectiveError(fmt::format("'{}' is neither visible, hidden, missing nor not visible", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::GuiDocument* document = findDocument(session, name);
    const std::string found = !document ? "missing" : document->isVisible() ? "visible" : "hidden";
    return Verdict{
        found == state || (state == "not visible" && found != "visible"), fmt::format("it is {}", found), {}};
  };
  return expectation;
}

// ELEMENT exists|missing: of a missing document, too, an element is missing.
Expectation expectPresence(const ElementReference& reference, bool wanted) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::GuiDocument* document = findDocument(session, reference.document);
    const bool exists = document && findElement(*document, reference.element);
    return Verdict{exists == wanted,
                   !document ? "there is no such document"
                   : exists  ? "it exists"
                             : "it is missing",
                   {}};
  };
  return expectation;
}

Expectation expectVisibility(const ElementReference& reference, bool wanted) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool visible = isElementVisible(session, reference);
    return Verdict{visible == wanted, visible ? "it is visible" : "it is hidden", {}};
  };
  return expectation;
}

using Reader = std::string (*)(const Element&);

std::string textOf(const Element& element) { return element.GetText(); }
std::string rmlOf(const Element& element) { return element.GetInnerRML(); }

Expectation expectContent(WordCursor& words, const ElementReference& reference, Reader read) {
  if (words.takeIf("==")) {
    const std::string expected = words.take("the expected text");
    return checking(reference, [=](Element& element) {
      const std::string found = read(element);
      return Verdict{textMatches(expected, found), shown(found), {}};
    });
  }
  if (words.takeIf("containing")) {
    const std::string part = words.take("a part of the text");
    if (part.empty()) throw DirectiveError("every text contains the empty text");
    const Times times = takeTimes(words);
    return checking(reference, [=](Element& element) {
      const std::string found = read(element);
      const std::uint64_t count = countOccurrences(part, found);
      return Verdict{times.holds(count), fmt::format("{} times in {}", count, shown(found)), {}};
    });
  }
  if (!words.peekKeyword("before", 1)) throw DirectiveError("behind text or rml stands ==, containing, or A before B");
  const std::string first = words.take("the first part");
  words.require("before");
  const std::string second = words.take("the second part");
  return checking(reference, [=](Element& element) {
    const std::string found = read(element);
    const std::size_t firstPlace = found.find(first), secondPlace = found.find(second);
    const bool holds = firstPlace != std::string::npos && secondPlace != std::string::npos && firstPlace < secondPlace;
    return Verdict{holds, shown(found), {}};
  });
}

// A number and its unit: "120px". Nothing for a text that doesn't begin with a number.
struct Measure {
  double number;
  std::string unit;
};
std::optional<Measure> measureOf(const std::string& text) {
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (end == text.c_str()) return std::nullopt;
  return Measure{number, end};
}

bool styleMatches(const std::string& expected, const std::string& found, std::optional<double> within) {
  if (textMatches(expected, found)) return true;
  const auto a = measureOf(expected), b = measureOf(found);
  return a && b && a->unit == b->unit && numbersMatch(a->number, b->number, within);
}

Expectation expectStyle(WordCursor& words, const ElementReference& reference) {
  const std::string property = words.take("the property's name");
  words.require("==");
  const std::string expected = words.take("the property's value");
  const std::optional<double> within = takeWithin(words);
  if (within && !measureOf(expected)) throw DirectiveError("'within' goes with a number");
  return checking(reference, [=](Element& element) {
    const Rocket::Core::String* found = element.GetLocalProperty(property);
    if (!found) throw NotThere(fmt::format("no local property '{}'", property));
    return Verdict{styleMatches(expected, *found, within), shown(*found), {}};
  });
}

Expectation expectAttribute(WordCursor& words, const ElementReference& reference) {
  const std::string name = words.take("the attribute's name");
  words.require("==");
  const std::string expected = words.take("the attribute's value");
  return checking(reference, [=](Element& element) {
    const Rocket::Core::String* found = element.FindAttribute(name);
    if (!found) throw NotThere(fmt::format("no attribute '{}'", name));
    return Verdict{textMatches(expected, *found), shown(*found), {}};
  });
}

Expectation expectNoAttribute(WordCursor& words, const ElementReference& reference) {
  const std::string name = words.take("the attribute's name");
  return checking(reference, [=](Element& element) {
    const Rocket::Core::String* found = element.FindAttribute(name);
    return Verdict{!found, found ? shown(*found) : "there is none", {}};
  });
}

Expectation expectClass(WordCursor& words, const ElementReference& reference, bool wanted) {
  const std::string name = words.take("the class");
  return checking(reference, [=](Element& element) {
    return Verdict{
        element.IsClassSet(name) == wanted, fmt::format("its classes are \"{}\"", element.GetClassNames()), {}};
  });
}

Expectation expectWidth(WordCursor& words, const ElementReference& reference) {
  words.require("==");
  const double expected = words.takeNumber("the width in pixels");
  const std::optional<double> within = takeWithin(words);
  return checking(reference, [=](Element& element) {
    const double found = element.GetClientWidth();
    return Verdict{numbersMatch(expected, found, within), fmt::format("{}", found), {}};
  });
}

Expectation expectElement(WordCursor& words) {
  const ElementReference reference = takeElementReference(words);
  if (words.takeIf("exists")) return expectPresence(reference, true);
  if (words.takeIf("missing")) return expectPresence(reference, false);
  if (words.takeIf("visible")) return expectVisibility(reference, true);
  if (words.takeIf("hidden")) return expectVisibility(reference, false);
  if (words.takeIf("text")) return expectContent(words, reference, textOf);
  if (words.takeIf("rml")) return expectContent(words, reference, rmlOf);
  if (words.takeIf("style")) return expectStyle(words, reference);
  if (words.takeIf("attribute")) return expectAttribute(words, reference);
  if (words.takeIf("class")) return expectClass(words, reference, true);
  if (words.takeIf("width")) return expectWidth(words, reference);
  if (words.takeIf("no")) {
    if (words.takeIf("attribute")) return expectNoAttribute(words, reference);
    if (words.takeIf("class")) return expectClass(words, reference, false);
    throw DirectiveError("behind 'no' stands attribute or class");
  }
  throw DirectiveError("behind an element stands exists, missing, visible, hidden, text, rml, style, attribute, class, "
                       "width or no");
}

}

std::optional<Expectation> readDocumentExpectation(WordCursor& words) {
  if (words.takeIf("document")) return expectDocument(words);
  if (words.takeIf("element")) return expectElement(words);
  return std::nullopt;
}

}
