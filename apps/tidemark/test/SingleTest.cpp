#include "apps/tidemark/test/SingleTest.h"

#include "apps/tidemark/peers/Machines.h"
#include "apps/tidemark/peers/StepTransport.h"
#include "apps/tidemark/platform/WriteLimit.h"
#include "apps/tidemark/session/WritableFolders.h"
#include "apps/tidemark/test/Discovery.h"
#include "apps/tidemark/test/TestResult.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/project/ProjectWriter.h"
#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;

/// Which machine of how many runs the plan in this process.
struct Machine {
  unsigned int index = 0;
  platform::BlockSocket* socket = nullptr; ///< null: the only one
};

std::unique_ptr<TestSession> makeSession(const TestPlan& plan, const std::string& projects,
                                         const std::vector<std::string>& writable, const Machine& machine) {
  if (!machine.socket) return std::make_unique<TestSession>(plan, projects, writable);
  return std::make_unique<TestSession>(plan, projects, writable, machine.index, *machine.socket);
}

Outcome runMachine(const TestPlan& plan, const fs::path& folder, const std::vector<std::string>& allowWrite,
                   const Machine& machine = {}) {
  const std::string projects = (folder / "projects").string();
  writeProjects(plan, projects);
  const std::string workingDirectory = projectDirectory(plan.projects.front(), projects);
  const std::vector<std::string> writable = writableFolders(workingDirectory, allowWrite);
  const auto session = makeSession(plan, projects, writable, machine);
  fs::current_path(workingDirectory);
  std::ofstream log(folder / LOG_FILE, std::ios::binary);
  session->setLogEcho([&log](const qsf::LogSystem::Record& record) {
    log << qsf::LogSystem::getSeverityName(record.severity) << ' ' << record.message << '\n' << std::flush;
  });
  Outcome outcome;
  platform::callWithWriteLimit(writable, [&] { outcome = session->run(); });
  return outcome;
}

// A machine that didn't come to its end.
Failure describeCrash(unsigned int machine, const platform::ExitStatus& status, const fs::path& folder) {
  const std::string how = status.signal != 0 ? fmt::format("crashed with {}", status.signalName)
                                             : fmt::format("ended with exit code {}", status.code);
  Failure failure{0, Failure::Kind::ERROR, fmt::format("the process of machine {} {}", machine, how), "", {}};
  appendTail(failure.log, folder / LOG_FILE, "last lines of its log:");
  appendTail(failure.log, folder / OUTPUT_FILE, "last lines of its output:");
  return failure;
}

bool isTold(const std::vector<Note>& notes, const Note& note) {
  return std::ranges::any_of(notes, [&](const Note& told) { return told.line == note.line && told.text == note.text; });
}

// A name that nobody has written is mistyped only if no machine has: each has stores of its own.
bool isUnwrittenName(const Note& note) { return note.text.find("nobody has written it") != std::string::npos; }

/// Each machine reads the same scripts, so what several tell is told once.
std::vector<Note> mergeNotes(const std::vector<Outcome>& machines) {
  std::vector<Note> notes;
  for (const Outcome& machine : machines)
    for (const Note& note : machine.notes) {
      const bool everywhere =
          std::ranges::all_of(machines, [&](const Outcome& other) { return isTold(other.notes, note); });
      if (!isTold(notes, note) && (everywhere || !isUnwrittenName(note))) notes.push_back(note);
    }
  return notes;
}

Outcome runMachines(const TestPlan& plan, const fs::path& folder, const std::vector<std::string>& allowWrite) {
  const auto folderOf = [&](unsigned int machine) { return folder / fmt::format("machine{}", machine); };
  for (unsigned int i = 0; i < plan.machines; ++i)
    fs::create_directory(folderOf(i));
  const auto run = [&](unsigned int index, platform::BlockSocket& socket) {
    const Outcome outcome = runMachine(plan, folderOf(index), allowWrite, {index, &socket});
    peers::sendResult(socket, "", encodeOutcome(outcome));
    return 0;
  };
  const auto ends = peers::runMachines(
      {plan.machines, plan.delay, plan.loss, plan.seed},
      [&](unsigned int machine) { return (folderOf(machine) / OUTPUT_FILE).string(); }, run,
      [](unsigned int, const std::string&) {});
  std::vector<Outcome> outcomes;
  Outcome all;
  for (unsigned int i = 0; i < ends.size(); ++i) {
    if (!ends[i].result) {
      all.failures.push_back(describeCrash(i, ends[i].status, folderOf(i)));
      continue;
    }
    outcomes.push_back(decodeOutcome(*ends[i].result));
    std::ranges::move(outcomes.back().failures, std::back_inserter(all.failures));
  }
  all.notes = mergeNotes(outcomes);
  return all;
}

Outcome runPlan(const TestPlan& plan, const fs::path& folder, const std::vector<std::string>& allowWrite) {
  return plan.machines > 1 ? runMachines(plan, folder, allowWrite) : runMachine(plan, folder, allowWrite);
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

void appendTail(std::vector<std::string>& lines, const fs::path& file, std::string_view title) {
  constexpr std::size_t MOST_LINES = 12;
  std::error_code ignored;
  if (!fs::exists(file, ignored) || fs::file_size(file, ignored) == 0) return;
  std::istringstream text(readFile(file.string()));
  std::vector<std::string> all;
  for (std::string line; std::getline(text, line);)
    all.push_back(toUtf8(line));
  lines.push_back(std::string(title));
  all.erase(all.begin(), all.end() - static_cast<std::ptrdiff_t>(std::min(all.size(), MOST_LINES)));
  lines.insert(lines.end(), all.begin(), all.end());
}

}
