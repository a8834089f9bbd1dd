#include "apps/tidemark/test/SingleTest.h"

#include "apps/tidemark/platform/WriteLimit.h"
#include "apps/tidemark/session/WritableFolders.h"
#include "apps/tidemark/test/Discovery.h"
#include "apps/tidemark/test/TestResult.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/project/ProjectWriter.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;

Outcome runPlan(const TestPlan& plan, const fs::path& folder, const std::vector<std::string>& allowWrite) {
  const std::string projects = (folder / "projects").string();
  writeProjects(plan, projects);
  const std::string workingDirectory = projectDirectory(plan.projects.front(), projects);
  const std::vector<std::string> writable = writableFolders(workingDirectory, allowWrite);
  TestSession session(plan, projects, writable);
  fs::current_path(workingDirectory);
  std::ofstream log(folder / LOG_FILE, std::ios::binary);
  session.setLogEcho([&log](const qsf::LogSystem::Record& record) {
    log << qsf::LogSystem::getSeverityName(record.severity) << ' ' << record.message << '\n' << std::flush;
  });
  Outcome outcome;
  platform::callWithWriteLimit(writable, [&] { outcome = session.run(); });
  return outcome;
}

Outcome runFile(const std::string& file, const fs::path& folder, const std::vector<std::string>& allowWrite,
                const BlankedEntry& blanked) {
  Outcome outcome;
  try {
    PlanResult result = readPlan(file, readFile(file));
    result.plan.blanked = blanked;
    if (result.faults.empty()) return runPlan(result.plan, folder, allowWrite);
    for (const PlanFault& fault : result.faults)
      outcome.failures.push_back({fault.line, Failure::Kind::ERROR, fault.text, "", {}});
  } catch (const std::exception& fault) {
    outcome.failures.push_back({0, Failure::Kind::ERROR, fault.what(), "", {}});
  }
  return outcome;
}

}

void runSingleTest(const std::string& file, const std::string& folder, const std::vector<std::string>& allowWrite,
                   const BlankedEntry& blanked) {
  const fs::path target = fs::absolute(folder);
  const Outcome outcome = runFile(file, target, allowWrite, blanked);
  std::ofstream result(target / RESULT_FILE, std::ios::binary);
  result << encodeOutcome(outcome);
  if (!result.flush()) throw std::runtime_error(fmt::format("{}: can't be written", (target / RESULT_FILE).string()));
}

}
