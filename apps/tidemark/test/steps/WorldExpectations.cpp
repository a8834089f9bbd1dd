// Expectations on entities, the selection, messages and recorded calls.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Selection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/Ids.h"
#include "qsf/base/NearNames.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/PropertyText.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace tidemark::test {

namespace {

constexpr double DEFAULT_DISTANCE = 0.01;

// True if a script of the test holds the name: scripts send messages of their own.
bool isWrittenInScripts(const TestPlan& plan, const std::string& name) {
  const auto holds = [&](const ScriptSection& script) {
    std::istringstream lines(script.text);
    for (std::string line; std::getline(lines, line);)
      if (line.find('$') == std::string::npos && line.find(name) != std::string::npos) return true;
    return false;
  };
  return std::ranges::any_of(plan.projects,
                             [&](const ProjectPlan& project) { return std::ranges::any_of(project.scripts, holds); });
}

bool isEmittedByTest(const TestPlan& plan, const std::string& name) {
  return std::ranges::any_of(plan.steps, [&](const Step& step) {
    const std::vector<Word> words = splitWords(step.text);
    return words.size() > 1 && words[0].text == "emit" && words[1].text == name;
  });
}

// A message that nobody could send is a slip of the keyboard, and `never` would hide it.
void requireMessage(const TestSession& session, const std::string& name) {
  const qsf::MessageSystem& messages = session.host().getQsf().getMessageSystem();
  const std::set<std::string>& known = messages.getMessageNames();
  if (known.contains(name) || messages.getEmittedCount(qsf::StringHash(name)) > 0 ||
      isEmittedByTest(session.plan(), name) || isWrittenInScripts(session.plan(), name))
    return;
  throw DirectiveError(fmt::format("nobody knows a message '{}'{}", name,
                                   qsf::nearNamesHint(name, std::vector<std::string>(known.begin(), known.end()))));
}

void requireOperation(const std::string& operation) {
  if (qsf::RecordedOperation::find(operation)) return;
  std::vector<std::string> known;
  for (const qsf::RecordedOperation* recorded : qsf::RecordedOperation::getAll())
    known.emplace_back(recorded->getName());
  throw DirectiveError(
      fmt::format("calls of '{}' are not recorded{}", operation, qsf::nearNamesHint(operation, known)));
}

Expectation expectMessage(WordCursor& words) {
  const std::string name = words.take("the message's name");
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireMessage(session, name);
    const std::uint64_t count = session.host().getQsf().getMessageSystem().getEmittedCount(qsf::StringHash(name));
    return Verdict{times.holds(count), fmt::format("emitted {} times", count), {}};
  };
  return expectation;
}

// The recorded arguments begin with the expected ones.
bool argumentsMatch(const std::vector<std::string>& expected, const std::vector<std::string>& found) {
  return expected.size() <= found.size() &&
         std::equal(expected.begin(), expected.end(), found.begin(), [](const auto& wanted, const auto& argument) {
           return valueMatches(wanted, argument, std::nullopt);
         });
}

Verdict checkCalls(const TestSession& session, const std::string& operation, const std::vector<std::string>& arguments,
                   Times times) {
  std::uint64_t count = 0;
  std::string seen;
  for (const qsf::CallRecorder::Call& call : session.host().getQsf().getCallRecorder().getCalls()) {
    if (call.operation != operation) continue;
    count += argumentsMatch(arguments, call.arguments);
    if (seen.size() < 400) seen += fmt::format("; ({})", fmt::join(call.arguments, ", "));
  }
  return {times.holds(count),
          fmt::format("{} such calls; its calls are{}", count, seen.empty() ? " none" : seen.substr(1)),
          {}};
}

Expectation expectCall(WordCursor& words) {
  const std::string operation = words.take("the operation's name");
  std::vector<std::string> arguments;
  if (words.takeIf("with"))
    while (!words.atEnd() && !(words.peekKeyword("never") && words.remaining() == 1) &&
           !(words.peekKeyword("times", 1) && words.remaining() == 2))
      arguments.push_back(words.take("an argument"));
  const Times times = takeTimes(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireOperation(operation);
    return checkCalls(session, operation, arguments, times);
  };
  return expectation;
}

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

Expectation expectElement(WordCursor& words) {
  // The documents of scripts come with the GUI; until then a test that asks for one must not pass.
  words.takeRest();
  throw DirectiveError("expectations on elements of documents are not available yet");
}

Expectation expectPosition(WordCursor& words, const EntityReference& reference) {
  const double x = words.takeNumber("the x value"), y = words.takeNumber("the y value"),
               z = words.takeNumber("the z value");
  const double within = takeWithin(words).value_or(DEFAULT_DISTANCE);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const std::string found =
        readProperty(session.findEntity(session.resolve(reference)), {"qsf::TransformComponent", "Position"});
    const glm::vec3 position = qsf::vectorFromText(found);
    const bool holds = numbersMatch(x, position.x, within) && numbersMatch(y, position.y, within) &&
                       numbersMatch(z, position.z, within);
    return Verdict{holds, fmt::format("at {}", found), {}};
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

Expectation expectProperty(WordCursor& words, const EntityReference& reference) {
  const PropertyName name = parsePropertyName(words.take("COMPONENT.PROPERTY"));
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

Expectation readEntityExpectation(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  if (words.takeIf("at")) return expectPosition(words, reference);
  if (words.takeIf("parent")) return expectParent(words, reference);
  if (words.takeIf("has")) return expectComponent(words, reference, true);
  if (words.takeIf("lacks")) return expectComponent(words, reference, false);
  return expectProperty(words, reference);
}

}

std::optional<Expectation> readWorldExpectation(WordCursor& words) {
  if (words.takeIf("message")) return expectMessage(words);
  if (words.takeIf("call")) return expectCall(words);
  if (words.takeIf("entity")) return expectEntity(words);
  if (words.takeIf("entities")) return expectNumberOfEntities(words);
  if (words.takeIf("selection")) return expectSelection(words);
  if (words.takeIf("element")) return expectElement(words);
  if (words.peek() && parseEntityReference(words.peek()->text)) return readEntityExpectation(words);
  return std::nullopt;
}

}
