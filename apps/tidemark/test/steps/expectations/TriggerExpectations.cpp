// Expectations on triggers and on the scripts that run.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/ScriptScope.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/base/Ids.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

namespace tidemark::test {

namespace {

using script::tooling::TriggerView;
using TriggerTest = std::function<Verdict(const TestSession&, const TriggerView&)>;

// `NAME` or `NAME#2`. A trigger whose name itself ends so is found first.
TriggerView findTrigger(const TestSession& session, const ScriptScope& scope, const std::string& name) {
  const std::vector<TriggerView> triggers = session.tooling().getTriggers(session.findScript(scope.script));
  const auto nth = [&](std::string_view wanted, std::uint64_t number) {
    return std::find_if(triggers.begin(), triggers.end(),
                        [&](const TriggerView& trigger) { return textMatches(wanted, trigger.name) && --number == 0; });
  };
  auto found = nth(name, 1);
  const std::size_t mark = name.rfind('#');
  if (found == triggers.end() && mark != std::string::npos) {
    const auto number = parseId(std::string_view(name).substr(mark + 1));
    if (number && *number > 0) found = nth(std::string_view(name).substr(0, mark), *number);
  }
  if (found != triggers.end()) return *found;
  std::string names;
  for (const TriggerView& trigger : triggers)
    names += fmt::format("{}\"{}\"", names.empty() ? "" : ", ", trigger.name);
  throw NotThere(fmt::format("no such trigger; script '{}' has {}", scope.script, names.empty() ? "none" : names));
}

template <class Read> TriggerTest expectNumber(WordCursor& words, std::string_view what, Read read) {
  const std::int64_t expected = words.takeInteger(what);
  return [expected, read](const TestSession&, const TriggerView& trigger) {
    const auto found = static_cast<std::int64_t>(read(trigger));
    return Verdict{found == expected, fmt::format("{}", found), {}};
  };
}

TriggerTest expectFlag(bool TriggerView::*flag, bool expected, std::string_view yes, std::string_view no) {
  return [=](const TestSession&, const TriggerView& trigger) {
    return Verdict{trigger.*flag == expected, std::string(trigger.*flag ? yes : no), {}};
  };
}

TriggerTest expectFired(WordCursor& words) {
  const Times times = takeTimes(words);
  return [times](const TestSession&, const TriggerView& trigger) {
    return Verdict{times.holds(trigger.timesFired), fmt::format("fired {} times", trigger.timesFired), {}};
  };
}

TriggerTest expectLastTime(WordCursor& words) {
  const double seconds = words.takeNumber("a time in seconds");
  const std::optional<double> within = takeWithin(words);
  return [=](const TestSession&, const TriggerView& trigger) {
    // Times are whole microseconds.
    const double found = trigger.lastTimeActive.getSecondsAsDouble();
    return Verdict{std::abs(found - seconds) <= std::max(within.value_or(0), 1e-6), fmt::format("{}", found), {}};
  };
}

// `callers == ID...`: whom a client sent along, in their order; nothing behind == means nobody. It ends the line.
TriggerTest expectCallers(WordCursor& words) {
  words.require("==");
  const std::vector<EntityReference> references = takeEntityReferences(words);
  return [references](const TestSession& session, const TriggerView& trigger) {
    std::vector<std::uint64_t> wanted;
    for (const EntityReference& reference : references)
      wanted.push_back(session.resolve(reference));
    return Verdict{trigger.callers == wanted,
                   trigger.callers.empty() ? "no callers" : fmt::format("{}", fmt::join(trigger.callers, " ")),
                   {}};
  };
}

TriggerTest expectTarget(WordCursor& words) {
  const bool none = words.takeIf("none");
  const EntityReference reference = none ? EntityReference{qsf::UNINITIALIZED_ID, "", 0} : takeEntityReference(words);
  return [reference](const TestSession& session, const TriggerView& trigger) {
    return Verdict{trigger.target == session.resolve(reference),
                   trigger.target == qsf::UNINITIALIZED_ID ? "no target" : fmt::format("{}", trigger.target),
                   {}};
  };
}

std::optional<TriggerTest> takeNumberTest(WordCursor& words) {
  if (words.takeIf("fulfilled"))
    return expectNumber(words, "the number behind 'fulfilled'",
                        [](const TriggerView& t) { return t.fulfilledConditions; });
  if (words.takeIf("required"))
    return expectNumber(words, "the number behind 'required'",
                        [](const TriggerView& t) { return t.requiredConditions; });
  if (words.takeIf("conditions"))
    return expectNumber(words, "the number of conditions", [](const TriggerView& t) { return t.conditions.size(); });
  if (words.takeIf("effects"))
    return expectNumber(words, "the number of effects", [](const TriggerView& t) { return t.effects.size(); });
  if (words.takeIf("blocks"))
    return expectNumber(words, "the number of blocks", [](const TriggerView& t) { return t.numberOfBlocks; });
  if (words.takeIf("multiplayer"))
    return expectNumber(words, "the multiplayer mode", [](const TriggerView& t) { return t.multiplayerMode; });
  if (words.takeIf("hash")) return expectNumber(words, "the hash", [](const TriggerView& t) { return t.hash; });
  if (words.takeIf("player"))
    return expectNumber(words, "the player's index", [](const TriggerView& t) { return t.player; });
  return std::nullopt;
}

TriggerTest takeTriggerTest(WordCursor& words) {
  if (words.takeIf("active")) return expectFlag(&TriggerView::active, true, "active", "inactive");
  if (words.takeIf("inactive")) return expectFlag(&TriggerView::active, false, "active", "inactive");
  if (words.takeIf("looped")) return expectFlag(&TriggerView::looped, true, "looped", "single");
  if (words.takeIf("single")) return expectFlag(&TriggerView::looped, false, "looped", "single");
  if (words.takeIf("fired")) return expectFired(words);
  if (words.takeIf("callers")) return expectCallers(words);
  if (words.takeIf("target")) return expectTarget(words);
  if (words.takeIf("lastTimeActive")) return expectLastTime(words);
  if (words.takeIf("global")) {
    const std::string expected = words.take("the global name");
    return [expected](const TestSession&, const TriggerView& trigger) {
      return Verdict{textMatches(expected, trigger.globalName), fmt::format("\"{}\"", trigger.globalName), {}};
    };
  }
  if (auto test = takeNumberTest(words)) return std::move(*test);
  throw DirectiveError(words.atEnd() ? "it isn't told what is expected of the trigger"
                                     : fmt::format("'{}' is nothing that a trigger has", words.peek()->text));
}

Expectation expectTrigger(WordCursor& words) {
  const ScriptScope scope = takeScope(words);
  words.require("trigger");
  const std::string name = words.take("the trigger's name");
  std::vector<TriggerTest> tests;
  do
    tests.push_back(takeTriggerTest(words));
  while (!words.atEnd());
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const TriggerView trigger = findTrigger(session, scope, name);
    Verdict verdict;
    for (const TriggerTest& test : tests)
      if (verdict = test(session, trigger); !verdict.holds) break;
    return verdict;
  };
  return expectation;
}

Expectation expectNumberOfTriggers(WordCursor& words) {
  const ScriptScope scope = takeScope(words);
  words.require("triggers");
  const std::uint64_t expected = words.takeId("the number of triggers");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::size_t found = session.tooling().getTriggers(session.findScript(scope.script)).size();
    return Verdict{found == expected, fmt::format("{}", found), {}};
  };
  return expectation;
}

bool isRunning(const TestSession& session, const std::string& name) {
  try {
    return session.tooling().getScripts()[session.findScript(name)].running;
  } catch (const NotThere&) {
    // A script that the module refused, or a temporary one that has ended, is stopped; a name that nothing bears is a
    // mistake.
    if (!session.isScriptInstalled(name)) throw;
    return false;
  }
}

Expectation expectScript(WordCursor& words) {
  words.require("script");
  const std::string name = words.take("the script's name");
  const std::string state = words.take("running or stopped");
  if (state != "running" && state != "stopped")
    throw DirectiveError(fmt::format("'{}' is neither running nor stopped", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool running = isRunning(session, name);
    return Verdict{running == (state == "running"), running ? "running" : "stopped", {}};
  };
  return expectation;
}

Expectation expectNumberOfScripts(WordCursor& words) {
  words.require("scripts");
  words.require("running");
  const std::uint64_t expected = words.takeId("the number of scripts");
  Expectation expectation;
  expectation.check = [expected](TestSession& session) {
    const auto scripts = session.tooling().getScripts();
    const auto found = static_cast<std::uint64_t>(
        std::count_if(scripts.begin(), scripts.end(), [](const auto& script) { return script.running; }));
    return Verdict{found == expected, fmt::format("{}", found), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readTriggerExpectation(WordCursor& words) {
  if (peekScoped(words, {"trigger"})) return expectTrigger(words);
  if (peekScoped(words, {"triggers"})) return expectNumberOfTriggers(words);
  if (words.peekKeyword("script")) return expectScript(words);
  if (words.peekKeyword("scripts")) return expectNumberOfScripts(words);
  return std::nullopt;
}

}
