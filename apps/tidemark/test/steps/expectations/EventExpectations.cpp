// Expectations on the game's missions and on the entities that belong to them.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/component/EventIdComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"
#include "qsf/map/Entity.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <functional>

namespace tidemark::test {

namespace {

using script::tooling::ScenarioEventView;

em5::FreeplayEventManager& eventManager() { return em5::Plugin::getInstance()->getFreeplaySystem().getEventManager(); }

// The oldest of that id, as scripts find it.
std::optional<ScenarioEventView> findEvent(const TestSession& session, std::int64_t uniqueId) {
  for (const ScenarioEventView& event : session.tooling().getScenarioEvents())
    if (event.uniqueId == uniqueId) return event;
  return std::nullopt;
}

ScenarioEventView requireEvent(const TestSession& session, std::int64_t uniqueId) {
  if (auto event = findEvent(session, uniqueId)) return *event;
  std::string running;
  for (const ScenarioEventView& event : session.tooling().getScenarioEvents())
    running += fmt::format(" {}", event.uniqueId);
  throw NotThere(fmt::format("no event {}; there are{}", uniqueId, running.empty() ? " none" : running));
}

em5::FreeplayEvent& requireHostEvent(const TestSession& session, std::int64_t uniqueId) {
  return *eventManager().getEventById(requireEvent(session, uniqueId).eventId);
}

std::string takeOneOf(WordCursor& words, const std::vector<std::string>& accepted) {
  const std::string word = words.take(fmt::format("{}", fmt::join(accepted, ", ")));
  if (std::ranges::find(accepted, word) == accepted.end())
    throw DirectiveError(fmt::format("'{}' is none of {}", word, fmt::join(accepted, ", ")));
  return word;
}

std::string takeEqualText(WordCursor& words) {
  words.require("==");
  return words.take("the expected text");
}

// How an objective is looked for: by its text id, or the first with a text.
struct ObjectiveName {
  bool isText = false;
  std::string text; // or the id

  em5::Objective* find(const em5::FreeplayEvent& event) const {
    if (!isText) return event.getObjectives().getObjectiveByTypeId(qsf::StringHash(text));
    for (const auto& objective : event.getObjectives().getObjectives())
      if (objective->getText() == text || objective->getShownText() == text) return objective.get();
    return nullptr;
  }
  const em5::Objective& require(const em5::FreeplayEvent& event) const {
    if (const em5::Objective* objective = find(event)) return *objective;
    std::string texts;
    for (const auto& objective : event.getObjectives().getObjectives())
      texts += fmt::format(" \"{}\"", objective->getText());
    throw NotThere(fmt::format("no such objective; the event's objectives read{}", texts.empty() ? " nothing" : texts));
  }
};

using ObjectiveCheck = std::function<Verdict(const em5::Objective&)>;

// Of an objective that is there.
Expectation onObjective(std::int64_t uniqueId, const ObjectiveName& name, const ObjectiveCheck& check) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) { return check(name.require(requireHostEvent(session, uniqueId))); };
  return expectation;
}

Expectation expectObjectiveMissing(std::int64_t uniqueId, const ObjectiveName& name) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool missing = name.find(requireHostEvent(session, uniqueId)) == nullptr;
    return Verdict{missing, missing ? "it is missing" : "it is there", {}};
  };
  return expectation;
}

Expectation expectObjectiveNumber(WordCursor& words, std::int64_t uniqueId, const ObjectiveName& name, bool current) {
  words.require("==");
  const std::int64_t expected = words.takeInteger("the number");
  return onObjective(uniqueId, name, [=](const em5::Objective& objective) {
    const int found = current ? objective.getCurrentNumber() : objective.getNeededNumber();
    return Verdict{
        found == expected,
        fmt::format("{}; it stands at {} / {}", found, objective.getCurrentNumber(), objective.getNeededNumber()),
        {}};
  });
}

Expectation expectObjectiveKind(WordCursor& words, std::int64_t uniqueId, const ObjectiveName& name) {
  words.require("==");
  const std::string kind = takeOneOf(words, {"REQUIRED", "OPTIONAL", "FAIL"});
  return onObjective(uniqueId, name, [=](const em5::Objective& objective) {
    static constexpr const char* NAMES[] = {"REQUIRED", "FAIL", "OPTIONAL"};
    const std::string found = NAMES[objective.getType()];
    return Verdict{found == kind, found, {}};
  });
}

Expectation expectObjective(WordCursor& words, std::int64_t uniqueId) {
  ObjectiveName name;
  name.isText = words.takeIf("with");
  if (name.isText) words.require("text");
  name.text = words.take("the objective's id or text");
  const std::string what = takeOneOf(
      words, name.isText ? std::vector<std::string>{"current", "needed", "missing"}
                         : std::vector<std::string>{"current", "needed", "missing", "reached", "open", "kind", "text"});
  if (what == "missing") return expectObjectiveMissing(uniqueId, name);
  if (what == "current" || what == "needed") return expectObjectiveNumber(words, uniqueId, name, what == "current");
  if (what == "kind") return expectObjectiveKind(words, uniqueId, name);
  if (what == "text")
    return onObjective(uniqueId, name, [expected = takeEqualText(words)](const em5::Objective& objective) {
      return Verdict{textMatches(expected, objective.getText()) || textMatches(expected, objective.getShownText()),
                     fmt::format("\"{}\", shown as \"{}\"", objective.getText(), objective.getShownText()),
                     {}};
    });
  return onObjective(uniqueId, name, [reached = what == "reached"](const em5::Objective& objective) {
    return Verdict{objective.isReached() == reached,
                   fmt::format("{} / {}", objective.getCurrentNumber(), objective.getNeededNumber()),
                   {}};
  });
}

Expectation expectEvent(WordCursor& words) {
  const std::int64_t uniqueId = words.takeInteger("the event's unique id");
  const std::string what = takeOneOf(words, {"running", "missing", "name", "type", "objective"});
  if (what == "objective") return expectObjective(words, uniqueId);
  Expectation expectation;
  if (what == "running" || what == "missing") {
    expectation.check = [=](TestSession& session) {
      const bool running = findEvent(session, uniqueId).has_value();
      return Verdict{running == (what == "running"), running ? "it runs" : "it is missing", {}};
    };
    return expectation;
  }
  const std::string expected = takeEqualText(words);
  expectation.check = [=](TestSession& session) {
    const std::string found =
        what == "name" ? requireHostEvent(session, uniqueId).getEventName() : requireEvent(session, uniqueId).eventType;
    return Verdict{textMatches(expected, found), fmt::format("\"{}\"", found), {}};
  };
  return expectation;
}

Expectation expectEvents(WordCursor& words) {
  const std::string what = takeOneOf(words, {"running", "succeeded", "failed"});
  const std::uint64_t expected = words.takeId("the number of events");
  Expectation expectation;
  expectation.check = [=](TestSession&) {
    const em5::FreeplayEventManager& manager = eventManager();
    const std::size_t found = what == "running"     ? manager.getNumberOfActiveEvents()
                              : what == "succeeded" ? manager.getNumberOfSucceededEvents()
                                                    : manager.getNumberOfFailedEvents();
    return Verdict{found == expected,
                   fmt::format("{} ({} run, {} succeeded, {} failed)", found, manager.getNumberOfActiveEvents(),
                               manager.getNumberOfSucceededEvents(), manager.getNumberOfFailedEvents()),
                   {}};
  };
  return expectation;
}

Expectation expectMembership(WordCursor& words, const EntityReference& reference) {
  words.require("event");
  const bool none = words.takeIf("none");
  const std::int64_t uniqueId = none ? 0 : words.takeInteger("the event's unique id");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const auto* membership = entity.getComponent<em5::EventIdComponent>();
    const em5::FreeplayEvent* event = membership ? membership->getFreeplayEvent() : nullptr;
    if (!event) return Verdict{none, "in no event", {}};
    if (none) return Verdict{false, fmt::format("in the event \"{}\"", event->getEventName()), {}};
    for (const ScenarioEventView& view : session.tooling().getScenarioEvents())
      if (view.eventId == event->getId())
        return Verdict{view.uniqueId == uniqueId, fmt::format("in event {}", view.uniqueId), {}};
    return Verdict{false, fmt::format("in the event \"{}\", which is no script's", event->getEventName()), {}};
  };
  return expectation;
}

Expectation expectTargets(WordCursor& words, const EntityReference& reference) {
  words.require("==");
  const std::vector<std::string> expected = words.takeRest();
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::vector<std::string> found =
        session.tooling().getEventTargets(session.findEntity(session.resolve(reference)).getId());
    return Verdict{std::ranges::equal(expected, found, textMatches),
                   found.empty() ? "none" : fmt::format("{}", fmt::join(found, " ")),
                   {}};
  };
  return expectation;
}

}

std::optional<Expectation> readEventExpectation(WordCursor& words) {
  if (words.takeIf("event")) return expectEvent(words);
  if (words.takeIf("events")) return expectEvents(words);
  if (!peekEntityForm(words, {"in", "targets"})) return std::nullopt;
  const EntityReference reference = takeEntityReference(words);
  if (words.takeIf("in")) return expectMembership(words, reference);
  words.require("targets");
  return expectTargets(words, reference);
}

}
