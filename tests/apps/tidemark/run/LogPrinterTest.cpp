#include "apps/tidemark/run/LogPrinter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tidemark::run {

namespace {

using qsf::LogSystem;

TEST(LogPrinter, WritesTextWithSeverityAndSimulatedTime) {
  LogSystem log;
  std::ostringstream stream;
  qsf::Time now = qsf::Time::fromSeconds(1.25);
  {
    const LogPrinter printer(
        log, LogPrinter::Format::TEXT, [&] { return now; }, stream);
    log.log(LogSystem::INFO, "a % {} line");
    now = qsf::Time::fromSeconds(12.3);
    log.log(LogSystem::WARNING, "second");
    log.log(LogSystem::NONE, "byte \xA7.");
  }
  log.log(LogSystem::ERROR, "after the end");
  EXPECT_EQ(stream.str(), "[    1.250] INFO    a % {} line\n[   12.300] WARNING second\n[   12.300] NONE    byte §.\n");
}

TEST(LogPrinter, WritesOneJsonObjectALine) {
  LogSystem log;
  std::ostringstream stream;
  {
    const LogPrinter printer(
        log, LogPrinter::Format::JSON_LINES, [] { return qsf::Time::fromSeconds(0.05); }, stream);
    log.log(LogSystem::ERROR, "say \"no\"\nnow");
    log.log(LogSystem::INFO, "byte \xA7.");
  }
  EXPECT_EQ(stream.str(), "{\"time\":0.05,\"severity\":\"ERROR\",\"message\":\"say \\\"no\\\"\\nnow\"}\n"
                          "{\"time\":0.05,\"severity\":\"INFO\",\"message\":\"byte §.\"}\n");
}

}

}
