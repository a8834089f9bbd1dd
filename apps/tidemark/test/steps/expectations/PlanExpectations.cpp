// Expectations on what entities do: their action plans, and the roles that their game logics give them.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/KnownNames.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/action/ActionComponent.h"
#include "qsf/base/NearNames.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidemark::test {

namespace {

bool derivesFrom(const camp::Class& metaclass, const camp::Class& base) {
  if (metaclass == base) return true;
  for (std::size_t i = 0; i < metaclass.baseCount(); ++i)
    if (derivesFrom(metaclass.base(i), base)) return true;
  return false;
}

template <class Base> std::vector<std::string> namesOfClasses() {
  std::vector<std::string> names;
  for (const camp::Class* metaclass : qsf::ClassRegistry::getClasses())
    if (derivesFrom(*metaclass, camp::classByType<Base>())) names.push_back(metaclass->name());
  return names;
}

// The class of that name, one of its other names included; null if there is none.
template <class Base> const camp::Class* findClass(const std::string& name) {
  const camp::Class* metaclass = qsf::ClassRegistry::findClass(qsf::StringHash(name));
  return metaclass && derivesFrom(*metaclass, camp::classByType<Base>()) ? metaclass : nullptr;
}

// An action of a name that nobody could have started is a slip of the keyboard, and `lacks` would hide it.
void requireActionType(const TestSession& session, const std::string& type) {
  if (findClass<qsf::Action>(type) || isWordOfActions(session.plan(), "push", 2, type) ||
      isWrittenInScripts(session.plan(), type))
    return;
  throw DirectiveError(
      fmt::format("there is no action '{}'{}", type, qsf::nearNamesHint(type, namesOfClasses<qsf::Action>())));
}

struct ActionPattern {
  std::string type;
  std::optional<unsigned int> priority;

  bool matches(const qsf::Action& action) const {
    const camp::Class* metaclass = findClass<qsf::Action>(type);
    const std::string name = action.getTypeName();
    return (name == type || (metaclass && metaclass->name() == name) || action.getTypeId() == qsf::StringHash(type)) &&
           (!priority || *priority == action.getPriority());
  }
};

// The colons in a type's name are none in front of a priority.
ActionPattern takeActionPattern(WordCursor& words) {
  const std::string text = words.take("an action's TYPE");
  const std::size_t colon = text.rfind(':');
  if (colon == std::string::npos || colon == 0 || text[colon - 1] == ':') return {text, std::nullopt};
  const auto priority = parseId(text.substr(colon + 1));
  if (!priority || *priority > std::numeric_limits<unsigned int>::max())
    throw DirectiveError(fmt::format("'{}' is no priority, in '{}'", text.substr(colon + 1), text));
  return {text.substr(0, colon), static_cast<unsigned int>(*priority)};
}

// Who has no action component does nothing.
std::vector<qsf::Action*> planOf(const TestSession& session, const EntityReference& reference) {
  const auto* actions = session.findEntity(session.resolve(reference)).getComponent<qsf::ActionComponent>();
  return actions ? actions->getPlan().getActions() : std::vector<qsf::Action*>();
}

std::string describe(const std::vector<qsf::Action*>& plan) {
  std::string text;
  for (const qsf::Action* action : plan)
    text += fmt::format("{}{}:{}", text.empty() ? "" : " ", action->getTypeName(), action->getPriority());
  return text.empty() ? "an empty plan" : text;
}

Expectation expectWholePlan(WordCursor& words, const EntityReference& reference) {
  std::vector<ActionPattern> patterns;
  while (!words.atEnd()) {
    patterns.push_back(takeActionPattern(words));
    if (!patterns.back().priority) throw DirectiveError(fmt::format("'{}' is no TYPE:PRIORITY", patterns.back().type));
  }
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    for (const ActionPattern& pattern : patterns)
      requireActionType(session, pattern.type);
    const std::vector<qsf::Action*> plan = planOf(session, reference);
    const bool holds = std::ranges::equal(
        patterns, plan, [](const auto& pattern, const auto* action) { return pattern.matches(*action); });
    return Verdict{holds, describe(plan), {}};
  };
  return expectation;
}

Expectation expectInPlan(WordCursor& words, const EntityReference& reference, bool wanted) {
  const ActionPattern pattern = takeActionPattern(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireActionType(session, pattern.type);
    const std::vector<qsf::Action*> plan = planOf(session, reference);
    const bool has = std::ranges::any_of(plan, [&](const qsf::Action* action) { return pattern.matches(*action); });
    return Verdict{has == wanted, describe(plan), {}};
  };
  return expectation;
}

Expectation expectPlan(WordCursor& words, const EntityReference& reference) {
  if (words.takeIf("==")) return expectWholePlan(words, reference);
  if (words.takeIf("contains")) return expectInPlan(words, reference, true);
  if (words.takeIf("lacks")) return expectInPlan(words, reference, false);
  throw DirectiveError("behind 'plan' stands ==, contains or lacks");
}

// `KEY=VALUE`: what an action was given.
struct Given {
  std::string key;
  PropertyValue value;
};

Given takeGiven(WordCursor& words) {
  PropertyValue word = takePropertyValue(words, "KEY=VALUE");
  const std::size_t sign = word.text.find('=');
  if (sign == std::string::npos || sign == 0) throw DirectiveError(fmt::format("'{}' is no KEY=VALUE", word.text));
  Given given{word.text.substr(0, sign), {word.text.substr(sign + 1), std::nullopt}};
  // Only what isn't quoted is read as an id of a list, the key aside.
  if (word.reference) given.value.reference = parseEntityReference(given.value.text);
  return given;
}

bool wasGiven(const TestSession& session, const qsf::action::Description& description, const Given& given) {
  const std::string expected = resolveValue(session, given.value);
  return std::ranges::any_of(description, [&](const auto& entry) {
    return entry.first == given.key && valueMatches(expected, entry.second, std::nullopt);
  });
}

std::string describeAction(const qsf::Action& action, const qsf::action::Description& description) {
  std::string text = action.getTypeName();
  for (const auto& [key, value] : description)
    text += fmt::format(" {}={}", key, value.find(' ') == std::string::npos ? value : fmt::format("\"{}\"", value));
  return text;
}

Expectation expectNoAction(const EntityReference& reference) {
  Expectation expectation;
  expectation.check = [reference](TestSession& session) {
    const std::vector<qsf::Action*> plan = planOf(session, reference);
    return Verdict{plan.empty(), plan.empty() ? "no action" : plan.front()->getTypeName(), {}};
  };
  return expectation;
}

Expectation expectAction(WordCursor& words, const EntityReference& reference) {
  if (words.takeIf("none")) return expectNoAction(reference);
  const std::string type = words.take("an action's TYPE or none");
  std::vector<Given> givens;
  if (words.takeIf("with")) {
    do
      givens.push_back(takeGiven(words));
    while (words.takeIf("with") || !words.atEnd()); // one `with` for all, or one for each
  }
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    requireActionType(session, type);
    const std::vector<qsf::Action*> plan = planOf(session, reference);
    if (plan.empty()) return Verdict{false, "no action", {}};
    const qsf::Action& action = *plan.front();
    const qsf::action::Description description = action.describe();
    const bool holds =
        ActionPattern{type, std::nullopt}.matches(action) &&
        std::ranges::all_of(givens, [&](const Given& given) { return wasGiven(session, description, given); });
    return Verdict{holds, givens.empty() ? action.getTypeName() : describeAction(action, description), {}};
  };
  return expectation;
}

Expectation expectLogic(WordCursor& words, const EntityReference& reference) {
  const std::string type = words.take("the game logic's TYPE");
  const std::string state = words.take("present or missing");
  if (state != "present" && state != "missing")
    throw DirectiveError(fmt::format("'{}' is neither present nor missing", state));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    if (!findClass<qsf::GameLogic>(type) && !isWrittenInScripts(session.plan(), type))
      throw DirectiveError(fmt::format("there is no game logic '{}'{}", type,
                                       qsf::nearNamesHint(type, namesOfClasses<qsf::GameLogic>())));
    const auto* logics = session.findEntity(session.resolve(reference)).getComponent<qsf::GameLogicComponent>();
    const bool has = logics && logics->getGameLogicByTypeId(qsf::StringHash(type));
    const std::string names = logics ? logics->getPropertyAsString("GameLogics") : std::string();
    return Verdict{has == (state == "present"), names.empty() ? "no game logics" : names, {}};
  };
  return expectation;
}

}

std::optional<Expectation> readPlanExpectation(WordCursor& words) {
  if (!peekEntityForm(words, {"plan", "action", "logic"})) return std::nullopt;
  const EntityReference reference = takeEntityReference(words);
  if (words.takeIf("plan")) return expectPlan(words, reference);
  if (words.takeIf("action")) return expectAction(words, reference);
  words.require("logic");
  return expectLogic(words, reference);
}

}
