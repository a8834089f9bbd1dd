// Expectations on the icons and bars that show over an entity.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/component/StatusOverlayComponent.h"
#include "qsf/map/Entity.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <limits>

namespace tidemark::test {

namespace {

using em5::StatusOverlayComponent;

// Icons and bars go by their numbers, also by such that have no name.
int takeOverlayNumber(WordCursor& words, std::string_view what) {
  const std::int64_t number = words.takeInteger(what);
  if (number < 0 || number > std::numeric_limits<int>::max())
    throw DirectiveError(fmt::format("{} is out of range", what));
  return static_cast<int>(number);
}

// Null if nothing has shown over the entity yet.
const StatusOverlayComponent* findOverlay(const TestSession& session, const EntityReference& reference) {
  return session.findEntity(session.resolve(reference)).getComponent<StatusOverlayComponent>();
}

Expectation expectIcon(WordCursor& words, const EntityReference& reference) {
  const int icon = takeOverlayNumber(words, "the icon's number");
  const std::string state = words.take("on or off");
  if (state != "on" && state != "off") throw DirectiveError(fmt::format("'{}' is neither on nor off", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const StatusOverlayComponent* overlay = findOverlay(session, reference);
    const bool visible = overlay && overlay->isIconVisible(icon);
    const bool none = !overlay || overlay->getVisibleIcons().empty();
    return Verdict{visible == (state == "on"),
                   none ? "no icons show"
                        : fmt::format("icons that show: {}", fmt::join(overlay->getVisibleIcons(), " ")),
                   {}};
  };
  return expectation;
}

std::string describeBars(const StatusOverlayComponent* overlay) {
  if (!overlay || overlay->getVisibleBars().empty()) return "no bars show";
  std::string text = "bars that show:";
  for (const auto& [bar, progress] : overlay->getVisibleBars())
    text += fmt::format(" {} at {}", bar, progress);
  return text;
}

Expectation expectBar(WordCursor& words, const EntityReference& reference) {
  const int bar = takeOverlayNumber(words, "the bar's number");
  const bool isOff = words.takeIf("off");
  if (!isOff && !words.peekKeyword("==")) throw DirectiveError("behind a bar's number stands == or off");
  if (!isOff) words.require("==");
  const double expected = isOff ? 0 : words.takeNumber("the bar's value");
  const std::optional<double> within = isOff ? std::nullopt : takeWithin(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const StatusOverlayComponent* overlay = findOverlay(session, reference);
    const std::optional<float> progress = overlay ? overlay->getBarProgress(bar) : std::nullopt;
    const bool holds = isOff ? !progress : progress && numbersMatch(expected, *progress, within);
    return Verdict{holds, describeBars(overlay), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readOverlayExpectation(WordCursor& words) {
  if (!peekEntityForm(words, {"icon", "bar"})) return std::nullopt;
  const EntityReference reference = takeEntityReference(words);
  if (words.takeIf("icon")) return expectIcon(words, reference);
  words.require("bar");
  return expectBar(words, reference);
}

}
