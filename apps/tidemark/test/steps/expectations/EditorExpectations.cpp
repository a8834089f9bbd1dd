// Expectations on the editor's steps and on whose values an entity has.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Editor.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/map/Entity.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

// `undo N`, `redo N`
Expectation expectSteps(WordCursor& words, std::size_t (qsf::editor::base::OperationManager::*count)() const) {
  const std::uint64_t expected = words.takeId("the number of steps");
  Expectation expectation;
  expectation.check = [=](TestSession&) {
    const std::size_t found = (requireEditor().getOperationManager().*count)();
    return Verdict{found == expected, fmt::format("{}", found), {}};
  };
  return expectation;
}

bool isOverridden(const qsf::Component& component, const std::string& property) {
  return component.getPropertyOverrideState(qsf::StringHash(property)) == qsf::InheritedObject::OVERRIDDEN;
}

std::string listOverrides(const qsf::Entity& entity) {
  std::string list;
  for (const qsf::Component* component : entity.getComponents()) {
    const camp::Class& type = component->getCampClass();
    for (std::size_t i = 0; i < type.propertyCount(); ++i)
      if (const std::string& name = type.property(i).name(); isOverridden(*component, name))
        list += fmt::format("{}{}.{}", list.empty() ? "" : ", ", type.name(), name);
  }
  return list.empty() ? "none" : list;
}

// `ID overrides COMPONENT.PROPERTY|none`
Expectation expectOverride(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  words.require("overrides");
  std::optional<PropertyName> name;
  if (!words.takeIf("none")) name = parsePropertyName(words.take("COMPONENT.PROPERTY, or none"));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    const std::string found = listOverrides(entity);
    if (!name) return Verdict{found == "none", found, {}};
    readProperty(entity, *name); // tells what isn't there
    return Verdict{isOverridden(*findComponent(entity, name->component), name->property), found, {}};
  };
  return expectation;
}

}

std::optional<Expectation> readEditorExpectation(WordCursor& words) {
  using Manager = qsf::editor::base::OperationManager;
  if (words.takeIf("undo")) return expectSteps(words, &Manager::getNumberOfUndoSteps);
  if (words.takeIf("redo")) return expectSteps(words, &Manager::getNumberOfRedoSteps);
  if (peekEntityForm(words, {"overrides"})) return expectOverride(words);
  return std::nullopt;
}

}
