#include "qsf/base/CallRecorder.h"
#include "tests/support/Paths.h"

#include "qsf/Qsf.h"
#include "qsf/base/RecordedOperation.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

TEST(CallRecorder, KeepsCallsInOrder) {
  qsf::CallRecorder recorder;
  recorder.record("em5::HintHelper::showHint", {"text", "1"});
  recorder.record("other");
  ASSERT_EQ(recorder.getCalls().size(), 2u);
  EXPECT_EQ(recorder.getCalls()[0].operation, "em5::HintHelper::showHint");
  EXPECT_EQ(recorder.getCalls()[0].arguments, (std::vector<std::string>{"text", "1"}));
  EXPECT_EQ(recorder.getCalls()[1].operation, "other");
}

TEST(CallRecorder, ForgetsTheOldestCallsOfALongGame) {
  qsf::CallRecorder recorder;
  for (int i = 0; i < 300000; ++i)
    recorder.record(std::to_string(i));
  EXPECT_LE(recorder.getCalls().size(), 131072u);
  EXPECT_GE(recorder.getCalls().size(), 65536u);
  EXPECT_EQ(recorder.getCalls().back().operation, "299999");
}

TEST(RecordedOperation, IsKnownByNameWhileItLivesAndRecordsWhereThereIsAHost) {
  {
    const qsf::RecordedOperation operation("test::operation", "a number");
    EXPECT_EQ(qsf::RecordedOperation::find("test::operation"), &operation);
    EXPECT_STREQ(operation.getArguments(), "a number");
    operation.record({"1"}); // without a host: nothing
    qsf::Qsf host;
    operation.record({"2"});
    ASSERT_EQ(host.getCallRecorder().getCalls().size(), 1u);
    EXPECT_EQ(host.getCallRecorder().getCalls()[0].operation, "test::operation");
    EXPECT_EQ(host.getCallRecorder().getCalls()[0].arguments, std::vector<std::string>{"2"});
  }
  EXPECT_EQ(qsf::RecordedOperation::find("test::operation"), nullptr);
}

TEST(RecordedOperation, AllStandInTheTableOfTheDocumentation) {
  std::string expected;
  for (const qsf::RecordedOperation* operation : qsf::RecordedOperation::getAll()) {
    const std::string arguments = operation->getArguments();
    expected += "| `" + std::string(operation->getName()) + "` | " + arguments + (arguments.empty() ? "|\n" : " |\n");
  }
  std::ifstream page(paths::sourceDirectory() + "/docs/host-game.md");
  std::string found;
  bool inTable = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) inTable = line == "## Operations that leave a trace in the call recorder";
    if (inTable && line.starts_with("| `")) found += line + "\n";
  }
  EXPECT_EQ(found, expected) << "docs/host-game.md has to list them by name, with their arguments";
}

}
