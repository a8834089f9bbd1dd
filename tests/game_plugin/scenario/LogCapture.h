#pragma once
#include "em5/base/GameLayer.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// A bare host whose log is kept, for tests of the engine without a game.
class LogCapture {
public:
  LogCapture() {
    em5::addGameLayer(mHost);
    mHost.getLogSystem().setThreshold(0);
    mHost.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      lines.emplace_back(record.severity, std::string(record.message));
    });
  }
  long count(int severity, const std::string& message) const {
    return std::count(lines.begin(), lines.end(), std::pair<int, std::string>(severity, message));
  }

  std::vector<std::pair<int, std::string>> lines;

private:
  qsf::Qsf mHost;
};
