#include "qsf/base/CallRecorder.h"

#include <gtest/gtest.h>

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

}
