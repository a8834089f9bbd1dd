#pragma once
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tidemark::test {

/// Runs a test in this process, with a look at the session when its host has started, behind the test's own steps.
inline std::vector<Failure> runWith(const std::string& text, const Action& look) {
  PlanResult result = readPlan("some.script", text);
  for (const PlanFault& fault : result.faults)
    ADD_FAILURE() << fault.line << ": " << fault.text;
  Step step;
  step.action = look;
  result.plan.steps.push_back(std::move(step));
  const std::string folder = platform::makeTemporaryDirectory();
  writeProjects(result.plan, folder);
  std::vector<Failure> failures = TestSession(result.plan, folder, {folder}).run().failures;
  std::filesystem::remove_all(folder);
  return failures;
}

}
