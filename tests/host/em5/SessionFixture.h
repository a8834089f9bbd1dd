#pragma once
#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A host session with the base project; log lines are kept, and a folder for further projects goes when the test ends.
class SessionTest : public testing::Test {
protected:
  void SetUp() override {
    mFolder = std::filesystem::temp_directory_path() / ("tidemark_session_" + std::to_string(getpid()));
    std::filesystem::remove_all(mFolder);
    std::filesystem::create_directories(mFolder);
  }
  void TearDown() override {
    session.reset();
    std::filesystem::remove_all(mFolder);
  }

  em5::HostSession& open(em5::HostSession::Options options = {}) {
    options.logThreshold = qsf::LogSystem::TRACE;
    session = std::make_unique<em5::HostSession>(options);
    session->getQsf().getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      log.emplace_back(record.severity, std::string(record.message));
    });
    session->mountBaseProject(paths::baseProject());
    return *session;
  }
  /// A session with a game on the empty map.
  em5::HostSession& play() {
    open().startGame(EMPTY_MAP);
    return *session;
  }
  void run(double seconds) {
    const auto frames = static_cast<int>(seconds / 0.05 + 0.5);
    for (int i = 0; i < frames; ++i)
      session->runFrame(TICK);
  }
  /// Writes a file below the test's folder and returns the folder of the project.
  std::string write(const std::string& project, const std::string& path, const std::string& text) {
    const std::filesystem::path file = mFolder / project / path;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return (mFolder / project).string();
  }
  std::string writeProject(const std::string& name) {
    return write(name, "project.json", "{\"name\": \"" + name + "\"}");
  }
  bool logged(int severity, const std::string& part) const {
    for (const auto& [level, text] : log)
      if (level == severity && text.find(part) != std::string::npos) return true;
    return false;
  }
  std::string folder() const { return mFolder.string(); }

  static constexpr const char* EMPTY_MAP = "em5/map/test/empty";
  static constexpr qsf::Time TICK = qsf::Time::fromMicroseconds(50'000);
  std::unique_ptr<em5::HostSession> session;
  std::vector<std::pair<int, std::string>> log;

private:
  std::filesystem::path mFolder;
};
