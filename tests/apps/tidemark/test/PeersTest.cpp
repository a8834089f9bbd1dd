// Script tests of several machines, as `tidemark test` reads and judges them.
#include "apps/tidemark/ProgramFixture.h"

namespace tidemark {

namespace {

using PeersTest = Program;

TEST_F(PeersTest, AGameThatCannotBeIsAFaultOfItsDirective) {
  const auto refuse = [this](const std::string& directive, const std::string& text) {
    expectFailure("$ @peers " + directive + "\n$ @expect triggers 0\n", {"failing.script:1: error: @peers: " + text});
  };
  refuse("1", "the number of machines is not between 2 and 4");
  refuse("5", "the number of machines is not between 2 and 4");
  refuse("two", "the number of machines: 'two' is no id");
  refuse("2 delay 1001", "the delay in frames is not between 0 and 1000");
  refuse("2 loss 100", "the loss in percent is not between 0 and 99");
  refuse("2 lag 3", "unexpected word 'lag'");
  expectFailure("$ @editor\n$ @peers 2\n$ @expect triggers 0\n",
                {"failing.script:2: error: @peers: an editing session has one machine"});
}

TEST_F(PeersTest, AMachineThatIsNotThereIsAFault) {
  expectFailure("$ @peers 2\n$ @expect on 2 sent 48 never\n",
                {"failing.script:2: error: on: there is no machine 2; the test has 2, from 0"});
  expectFailure("$ @peers 3\n$ @at 0.1 on 3 pause\n$ @expect sent 48 never\n",
                {"failing.script:2: error: on: there is no machine 3; the test has 3, from 0"});
  expectFailure(
      "$ @at 0 on 1 pause\n$ @expect triggers 0\n",
      {"failing.script:1: error: on: there is no machine 1; '@peers 2' makes the test a game of two machines"});
}

TEST_F(PeersTest, WithOneMachineThereIsNoNetwork) {
  expectFailure("$ @at 0 leave\n$ @expect triggers 0\n",
                {"failing.script:1: error: leave: the test has one machine only"});
  expectFailure("$ @at 0 receive 48 \"\"\n$ @expect triggers 0\n", {"receive 48 \"\": the test has one machine only"});
  expectFailure("$ @expect sent 48 never\n", {"failing.script:1: error: sent 48 never: the test has one machine only"});
}

TEST_F(PeersTest, BytesFromOutsideAreRead) {
  const auto refuse = [this](const std::string& message, const std::string& text) {
    expectFailure("$ @peers 2\n$ @at 0 receive " + message + "\n$ @expect sent 48 never\n",
                  {"failing.script:2: error: @at: " + text});
  };
  refuse("48 \"123\"", "a byte has two hexadecimal digits; one is missing");
  refuse("48 \"1G\"", "'G' is no hexadecimal digit");
  refuse("48 \"12\" bits 9", "there are 8 bits only");
  refuse("4294967296 \"12\"", "there is no message of that number");
}

TEST_F(PeersTest, AFailureTellsWhatPassedTheMachinesDoor) {
  expectFailure("$ @peers 2\n$ @expect on 1 sent 48 2 times\n",
                {"expected: on 1 sent 48 2 times", "0 times; nothing passed the machine's door"});
  expectFailure("$ @peers 2\n$ @at 0.1 receive 9 \"AB\" bits 7\n$ @expect received 9 never\n",
                {"1 times; received 9 bits 7 from 1, not understood"});
}

}

}
