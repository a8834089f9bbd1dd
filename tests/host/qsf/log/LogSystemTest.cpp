#include "qsf/log/LogSystem.h"
#include "qsf/Qsf.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/log/FaultCounter.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using qsf::LogSystem;

using Lines = std::vector<std::pair<int, std::string>>;

LogSystem::Listener into(Lines& lines) {
  return [&lines](const LogSystem::Record& record) { lines.emplace_back(record.severity, record.message); };
}

TEST(LogSystem, HandsLinesToListenersInTheirOrder) {
  LogSystem log;
  std::string order;
  log.addListener([&](const LogSystem::Record& record) { order += "first:" + std::string(record.message) + " "; });
  log.addListener([&](const LogSystem::Record& record) { order += "second:" + std::string(record.message) + " "; });
  log.log(LogSystem::INFO, "a");
  log.log(LogSystem::ERROR, "b");
  EXPECT_EQ(order, "first:a second:a first:b second:b ");
}

TEST(LogSystem, DropsWhatLiesBelowTheThreshold) {
  LogSystem log;
  Lines lines;
  log.addListener(into(lines));
  EXPECT_EQ(log.getThreshold(), LogSystem::INFO);
  EXPECT_FALSE(log.shouldBeLogged(LogSystem::DEBUG));
  log.log(LogSystem::DEBUG, "dropped");
  log.setThreshold(LogSystem::TRACE);
  EXPECT_TRUE(log.shouldBeLogged(LogSystem::TRACE));
  log.log(LogSystem::TRACE, "kept");
  EXPECT_EQ(lines, (Lines{{0, "kept"}}));
}

TEST(LogSystem, DropsNumbersThatAreNoSeverity) {
  LogSystem log;
  Lines lines;
  log.addListener(into(lines));
  log.setThreshold(-5);
  for (const int severity : {-1, 6, 100, 5, 0})
    log.log(severity, "text");
  EXPECT_EQ(lines, (Lines{{5, "text"}, {0, "text"}}));
  EXPECT_FALSE(log.shouldBeLogged(6));
}

TEST(LogSystem, NamesSeverities) {
  EXPECT_EQ(LogSystem::getSeverityName(0), "TRACE");
  EXPECT_EQ(LogSystem::getSeverityName(3), "WARNING");
  EXPECT_EQ(LogSystem::getSeverityName(5), "NONE");
  EXPECT_EQ(LogSystem::getSeverityName(6), "");
  EXPECT_EQ(LogSystem::getSeverityName(-1), "");
}

TEST(LogSystem, ListenersMayComeAndGoInsideAListener) {
  LogSystem log;
  std::string calls;
  std::size_t second = 0;
  std::size_t first = 0;
  first = log.addListener([&](const LogSystem::Record&) {
    calls += "first ";
    log.removeListener(second);
    log.removeListener(first);
    log.addListener([&](const LogSystem::Record&) { calls += "third "; });
  });
  second = log.addListener([&](const LogSystem::Record&) { calls += "second "; });
  log.log(LogSystem::INFO, "a");
  EXPECT_EQ(calls, "first ");
  log.log(LogSystem::INFO, "b");
  EXPECT_EQ(calls, "first third ");
}

TEST(LogSystem, AListenerThatLogsDoesNotGoOnForEver) {
  LogSystem log;
  int calls = 0;
  log.addListener([&](const LogSystem::Record&) {
    ++calls;
    log.log(LogSystem::INFO, "again");
  });
  log.log(LogSystem::INFO, "a");
  EXPECT_GT(calls, 1);
  EXPECT_LT(calls, 100);
}

TEST(LogSystem, AFaultOfOneListenerDoesNotReachTheOthersOrTheCaller) {
  LogSystem log;
  Lines lines;
  log.addListener([](const LogSystem::Record&) { throw std::runtime_error("broken"); });
  log.addListener(into(lines));
  EXPECT_NO_THROW(log.log(LogSystem::INFO, "a"));
  EXPECT_EQ(lines.size(), 1u);
}

TEST(LogMessage, WithoutAHostGoesNowhere) { EXPECT_NO_THROW(qsf::logMessage(LogSystem::ERROR, "nobody listens")); }

TEST(ErrorHandling, LogsFaultsAsTheyStandAndNeverBreaks) {
  qsf::Qsf host;
  Lines lines;
  host.getLogSystem().setThreshold(LogSystem::TRACE);
  host.getLogSystem().addListener(into(lines));
  qsf::ErrorHandling::printToLog("Something failed", 1);
  EXPECT_FALSE(qsf::ErrorHandling::handleBreakOnAssert("file.cpp", 7, "install"));
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].first, LogSystem::ERROR);
  EXPECT_EQ(lines[0].second, "Something failed");
  EXPECT_EQ(lines[1].first, LogSystem::DEBUG);
  EXPECT_NE(lines[1].second.find("file.cpp:7"), std::string::npos);
  EXPECT_NO_THROW(qsf::ErrorHandling::handleBreakOnAssert(nullptr, 0, nullptr));
}

TEST(FaultCounter, CountsFaultsOfTheRunningHost) {
  qsf::Qsf host;
  Lines lines;
  host.getLogSystem().addListener(into(lines));
  EXPECT_EQ(host.getFaultCounter().getCount(), 0u);
  const auto source = [] { return std::string("a test"); };
  EXPECT_TRUE(qsf::callGuarded([] {}, source));
  EXPECT_FALSE(qsf::callGuarded([] { throw std::runtime_error("it broke"); }, source));
  EXPECT_FALSE(qsf::callGuarded([] { throw 5; }, source));
  EXPECT_EQ(host.getFaultCounter().getCount(), 2u);
  EXPECT_EQ(host.getFaultCounter().getLastFault(), "Fault in a test: unknown exception");
  EXPECT_EQ(lines, (Lines{{4, "Fault in a test: it broke"}, {4, "Fault in a test: unknown exception"}}));
}

}
