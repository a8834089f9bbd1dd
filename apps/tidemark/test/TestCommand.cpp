// `tidemark test`, and the hidden `single-test` in which each test runs.
#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/Options.h"
#include "apps/tidemark/OutputFile.h"
#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/ModuleAccess.h"
#include "apps/tidemark/session/WritableFolders.h"
#include "apps/tidemark/test/Discovery.h"
#include "apps/tidemark/test/SingleTest.h"
#include "apps/tidemark/test/TestScheduler.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <thread>

namespace tidemark::test {

namespace {

struct Options {
  std::vector<std::string> paths;
  std::string filter;
  std::string junit;
  unsigned int jobs = std::max(1u, std::thread::hardware_concurrency());
  double limit = 60; ///< seconds of real time
  bool strict = false;
  std::vector<std::string> allowWrite;
  std::string blank; ///< NAME or NAME=true
};

/// "NAME", "NAME=false" or "NAME=true".
BlankedEntry parseBlanked(const std::string& text) {
  const std::size_t mark = text.find('=');
  const std::string answer = mark == std::string::npos ? "false" : text.substr(mark + 1);
  if (answer != "true" && answer != "false")
    throw UsageError(fmt::format("--blank: '{}' is neither true nor false", answer));
  return {text.substr(0, mark), answer == "true"};
}

void requireBlanked(const BlankedEntry& blanked) {
  if (blanked.name.empty()) return;
  const LoadedModule module;
  const auto entries = module.tooling().getCatalogue();
  if (std::ranges::none_of(entries, [&](const auto& entry) { return entry.name == blanked.name; }))
    throw UsageError(fmt::format("--blank: there is no condition or effect '{}'", blanked.name));
}

void addBlank(CLI::App& command, std::string& blank) {
  command
      .add_option(
          "--blank", blank,
          "Let this effect do nothing, or this condition answer false, or with =true true: tests that still pass "
          "don't test it")
      ->check(notEmpty("an entry's name"))
      ->type_name("NAME[=true]");
}

std::string colour(std::string_view code, const std::string& text) {
  return platform::outputIsTerminal() ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : text;
}

void printResult(std::FILE* output, const TestResult& result) {
  if (result.passed() && result.notes.empty()) return;
  fmt::print(output, "{} {}\n", result.passed() ? colour("33", "NOTE") : colour("31", "FAIL"), result.file);
  std::vector<std::string> shown;
  for (Failure failure : result.failures) {
    // Failures of one moment have the same lines around them.
    if (failure.log == shown && !shown.empty())
      failure.log = {"(as above)"};
    else
      shown = failure.log;
    fmt::print(output, "  {}", describeFailure(result.file, failure));
  }
  for (const Note& note : result.notes)
    fmt::print(output, "  {}", describeNote(result.file, note));
  std::fflush(output);
}

void printProgress(std::size_t done, std::size_t all) {
  if (platform::errorsAreTerminal() && platform::outputIsTerminal())
    fmt::print(stderr, "\r{}/{}{}", done, all, done == all ? "\r\x1b[K" : "");
}

// Throws if there is none: a build server must not take a mistyped path for a success.
std::vector<std::string> selectTests(const Options& options) {
  std::vector<std::string> files = findTests(options.paths);
  std::erase_if(files, [&](const std::string& file) { return file.find(options.filter) == std::string::npos; });
  if (files.empty())
    throw std::runtime_error(options.filter.empty()
                                 ? "no test found; a test is a *.script file with a $ @expect line"
                                 : fmt::format("no test found whose path holds '{}'", options.filter));
  return files;
}

int runTests(const Options& options) {
  requireBlanked(parseBlanked(options.blank)); // rather than in each test
  baseProjectDirectory();                      // without it each test would tell the same
  const std::vector<std::string> files = selectTests(options);
  OutputFile junit("--junit", options.junit);
  // Results in XML have standard output for themselves.
  std::FILE* const output = junit.isStandardOutput() ? stderr : stdout;
  platform::catchInterrupts();
  TestScheduler scheduler({options.jobs, std::chrono::milliseconds(static_cast<std::int64_t>(options.limit * 1000)),
                           options.strict, options.blank, options.allowWrite});
  std::size_t done = 0;
  const std::vector<TestResult> results = scheduler.run(files, [&](const TestResult& result) {
    printResult(output, result);
    printProgress(++done, files.size());
  });
  if (junit.isWanted()) junit.write(toJUnit(results));
  const auto failed = static_cast<std::size_t>(
      std::count_if(results.begin(), results.end(), [](const TestResult& result) { return !result.passed(); }));
  if (results.size() < files.size())
    fmt::print(stderr, "tidemark test: interrupted after {} of {} tests\n", results.size(), files.size());
  fmt::print(output, "{} passed, {} failed\n", results.size() - failed, failed);
  return failed > 0 || results.size() < files.size() ? EXIT_FAULT : EXIT_FINE;
}

std::function<int()> declareTest(CLI::App& command) {
  auto options = std::make_shared<Options>();
  command.add_option("path", options->paths, "Test files, or folders to search for them")
      ->required()
      ->check(notEmpty("a path"))
      ->type_name("PATH");
  command.add_option("--filter", options->filter, "Run only tests whose path holds this text; else all")
      ->type_name("TEXT");
  command.add_flag("--strict", options->strict,
                   "A dropped line or a hint that no expectation names makes its test fail; else it is told as a note");
  command
      .add_option("--junit", options->junit, "Write the results to this file, in JUnit's format; - is standard output")
      ->type_name("FILE");
  command.add_option("--jobs,-j", options->jobs, "Tests that run at a time")
      ->capture_default_str()
      ->check(CLI::Range(1u, 1024u))
      ->type_name("N");
  command.add_option("--time-limit", options->limit, "Seconds of real time that a test may take")
      ->capture_default_str()
      ->check(numberFrom(0.1, 86400.0))
      ->type_name("S");
  addAllowWrite(command, options->allowWrite);
  addBlank(command, options->blank);
  return [options] { return runTests(*options); };
}

std::function<int()> declareSingleTest(CLI::App& command) {
  struct Single {
    std::string file, folder;
    std::vector<std::string> allowWrite;
    std::string blank;
  };
  auto single = std::make_shared<Single>();
  command.add_option("file", single->file)->required();
  command.add_option("folder", single->folder)->required();
  addAllowWrite(command, single->allowWrite);
  addBlank(command, single->blank);
  return [single] {
    runSingleTest(single->file, single->folder, single->allowWrite, parseBlanked(single->blank));
    return EXIT_FINE;
  };
}

}

}

namespace tidemark {

Subcommand testCommand() {
  return {
      "test", "Run script tests: *.script files whose $ @... lines say what is expected",
      "Example:\n  tidemark test tests/scripts --filter variables --junit results.xml\n\nExit codes: 0 all passed, 1 "
      "a test failed, 2 wrong usage, 3 a path cannot be read, there is no test, or the results\ncannot be written.",
      test::declareTest};
}

Subcommand singleTestCommand() { return {"single-test", "", "", test::declareSingleTest}; }

}
