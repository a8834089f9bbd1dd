#include "apps/tidemark/run/EditorReport.h"

#include "apps/tidemark/test/RunTest.h"
#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/editor/Application.h"
#include "qsf/editor/base/BackupPrototypeOperationData.h"
#include "qsf/editor/base/CompoundOperation.h"
#include "qsf/editor/base/CreateEntityOperation.h"
#include "qsf/map/Map.h"

#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using Steps = std::optional<std::vector<EditorStep>>;

// The steps of a session in which that was done.
Steps stepsAfter(const std::string& directives, const std::function<void()>& deed) {
  Steps steps;
  const auto failures = test::runWith(directives + "$ @for 0\n$ @expect triggers 0\n", [&](test::TestSession&) {
    deed();
    steps = collectEditorSteps();
  });
  EXPECT_TRUE(failures.empty());
  return steps;
}

qsf::editor::base::OperationManager& manager() {
  return qsf::UniqueInstance<qsf::editor::Application>()->getOperationManager();
}

void pushCreationOf(const std::vector<std::uint64_t>& ids) {
  auto step = std::make_unique<qsf::editor::base::CompoundOperation>();
  for (const std::uint64_t id : ids) {
    qsf::Prototype prototype(id);
    prototype.getOrCreateComponent<qsf::MetadataComponent>()->setName("tree");
    auto backup = std::make_unique<qsf::editor::base::BackupPrototypeOperationData>(prototype);
    step->pushBackOperation(std::make_unique<qsf::editor::base::CreateEntityOperation>(id, 0, *backup));
    step->addOperationData(std::move(backup));
  }
  step->setText(step->getOperations().front()->getText());
  manager().push(std::move(step), true);
}

std::string toJson(const Steps& steps) {
  nlohmann::ordered_json root = nlohmann::ordered_json::object();
  addEditorSteps(steps, root);
  return root.dump();
}

TEST(EditorReport, InAGameThereIsNone) {
  const Steps steps = stepsAfter("", [] {});
  EXPECT_FALSE(steps);
  EXPECT_EQ(describeEditorSteps(steps), "");
  EXPECT_EQ(toJson(steps), "{}");
}

TEST(EditorReport, ASessionInWhichNothingWasDoneSaysSo) {
  const Steps steps = stepsAfter("$ @editor\n", [] {});
  EXPECT_EQ(describeEditorSteps(steps), "\nno operations in the editor\n");
  EXPECT_EQ(toJson(steps), R"({"operations":[]})");
}

TEST(EditorReport, EachStepIsALineAndTellsWhatItMakes) {
  const Steps steps = stepsAfter("$ @editor\n", [] {
    pushCreationOf({100, 101});
    pushCreationOf({102});
    manager().undo();
  });
  EXPECT_EQ(describeEditorSteps(steps), "\n2 operations in the editor\n"
                                        "    1  Create entity 100 \"tree\" on layer \"Base\"\n"
                                        "    2  Create entity 102 \"tree\" on layer \"Base\"  undone\n");
  EXPECT_EQ(toJson(steps), R"({"operations":[{"text":"Create entity 100 \"tree\" on layer \"Base\"","undone":false,)"
                           R"("creates":[{"entity":100,"layer":"Base"},{"entity":101,"layer":"Base"}]},)"
                           R"({"text":"Create entity 102 \"tree\" on layer \"Base\"","undone":true,)"
                           R"("creates":[{"entity":102,"layer":"Base"}]}]})");
}

}

}
