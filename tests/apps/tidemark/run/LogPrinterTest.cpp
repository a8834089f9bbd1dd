#include "apps/tidemark/run/LogPrinter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tidemark::run {

namespace {

using qsf::LogSystem;
using script::tooling::Origin;

std::optional<Origin> nowhere() { return std::nullopt; }

TEST(LogPrinter, WritesTextWithSeverityAndSimulatedTime) {
  LogSystem log;
  std::ostringstream stream;
  qsf::Time now = qsf::Time::fromSeconds(1.25);
  {
    const LogPrinter printer(log, LogPrinter::Format::TEXT, {[&] { return now; }, nowhere}, stream);
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
    const LogPrinter printer(log, LogPrinter::Format::JSON_LINES,
                             {[] { return qsf::Time::fromSeconds(0.05); }, nowhere}, stream);
    log.log(LogSystem::ERROR, "say \"no\"\nnow");
    log.log(LogSystem::INFO, "byte \xA7.");
  }
  EXPECT_EQ(stream.str(), "{\"time\":0.05,\"severity\":\"ERROR\",\"message\":\"say \\\"no\\\"\\nnow\"}\n"
                          "{\"time\":0.05,\"severity\":\"INFO\",\"message\":\"byte §.\"}\n");
}

TEST(LogPrinter, LinesOfScriptsTellTheirPlace) {
  LogSystem log;
  std::ostringstream stream;
  const auto time = [] { return qsf::Time::fromSeconds(1); };
  {
    const LogPrinter text(log, LogPrinter::Format::TEXT,
                          {time,
                           [] {
                             return Origin{"/p/x64/tidemark/day.script", 12, "Gr\xFC\xDF"};
                           }},
                          stream);
    log.log(LogSystem::INFO, "tick");
  }
  EXPECT_EQ(stream.str(), "[    1.000] INFO    tick    day.script:12 Grüß\n");
  stream.str("");
  {
    const LogPrinter json(log, LogPrinter::Format::JSON_LINES,
                          {time,
                           [] {
                             return Origin{"/p/day.script", 3, ""};
                           }},
                          stream);
    log.log(LogSystem::INFO, "tick");
  }
  EXPECT_EQ(stream.str(), "{\"time\":1.0,\"severity\":\"INFO\",\"message\":\"tick\",\"script\":\"day.script\","
                          "\"path\":\"/p/day.script\",\"line\":3,\"trigger\":\"\"}\n");
}

}

}
