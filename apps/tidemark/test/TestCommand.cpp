#include "apps/tidemark/test/TestCommand.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/NumberOption.h"
#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/test/Discovery.h"
#include "apps/tidemark/test/SingleTest.h"
#include "apps/tidemark/test/TestScheduler.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <fstream>
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
};

std::string colour(std::string_view code, const std::string& text) {
  return platform::outputIsTerminal() ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : text;
}

void printResult(const TestResult& result) {
  if (result.passed()) return;
  fmt::print("{} {}\n", colour("31", "FAIL"), result.file);
  std::vector<std::string> shown;
  for (Failure failure : result.failures) {
    // Failures of one moment have the same lines around them.
    if (failure.log == shown && !shown.empty())
      failure.log = {"(as above)"};
    else
      shown = failure.log;
    fmt::print("  {}", describeFailure(result.file, failure));
  }
  std::fflush(stdout);
}

void printProgress(std::size_t done, std::size_t all) {
  if (platform::errorsAreTerminal() && platform::outputIsTerminal())
    fmt::print(stderr, "\r{}/{}{}", done, all, done == all ? "\r\x1b[K" : "");
}

std::vector<std::string> selectTests(const Options& options) {
  std::vector<std::string> files = findTests(options.paths);
  std::erase_if(files, [&](const std::string& file) { return file.find(options.filter) == std::string::npos; });
  if (files.empty())
    fmt::print(stderr, "tidemark test: no test found{}\n",
               options.filter.empty() ? "; a test is a *.script file with a $ @expect line"
                                      : fmt::format(" whose path holds '{}'", options.filter));
  return files;
}

void writeJUnit(const std::string& path, const std::vector<TestResult>& results) {
  std::ofstream file(path, std::ios::binary);
  file << toJUnit(results);
  if (!file.flush()) throw std::runtime_error(fmt::format("--junit: {} can't be written", path));
}

int runTests(const Options& options) {
  const std::vector<std::string> files = selectTests(options);
  platform::catchInterrupts(platform::Requests::ALL);
  TestScheduler scheduler({options.jobs, std::chrono::milliseconds(static_cast<std::int64_t>(options.limit * 1000))});
  std::size_t done = 0;
  const std::vector<TestResult> results = scheduler.run(files, [&](const TestResult& result) {
    printResult(result);
    printProgress(++done, files.size());
  });
  if (!options.junit.empty()) writeJUnit(options.junit, results);
  const auto failed = static_cast<std::size_t>(
      std::count_if(results.begin(), results.end(), [](const TestResult& result) { return !result.passed(); }));
  if (results.size() < files.size())
    fmt::print(stderr, "tidemark test: interrupted after {} of {} tests\n", results.size(), files.size());
  fmt::print("{} passed, {} failed\n", results.size() - failed, failed);
  return failed > 0 || results.size() < files.size() ? EXIT_FAULT : EXIT_FINE;
}

int runTestsGuarded(const Options& options) {
  try {
    baseProjectDirectory(); // without it each test would tell the same
    return runTests(options);
  } catch (const std::exception& fault) {
    fmt::print(stderr, "tidemark test: {}\n", fault.what());
    return EXIT_CANNOT_LOAD;
  }
}

void addSingleTest(CLI::App& app, int& exitCode) {
  CLI::App* command = app.add_subcommand("single-test", "")->group("");
  struct Single {
    std::string file, folder;
  };
  auto single = std::make_shared<Single>();
  command->add_option("file", single->file)->required();
  command->add_option("folder", single->folder)->required();
  command->callback([single, &exitCode] {
    runSingleTest(single->file, single->folder);
    exitCode = EXIT_FINE;
  });
}

}

void addTestCommand(CLI::App& app, int& exitCode) {
  CLI::App* command =
      app.add_subcommand("test", "Run script tests: *.script files whose $ @... lines say what is expected");
  auto options = std::make_shared<Options>();
  command->add_option("path", options->paths, "Test files, or folders to search for them")
      ->required()
      ->type_name("PATH");
  command->add_option("--filter", options->filter, "Run only tests whose path holds this text")->type_name("TEXT");
  command->add_option("--junit", options->junit, "Write the results to this file, in JUnit's format")
      ->type_name("FILE");
  command->add_option("--jobs,-j", options->jobs, "Tests that run at a time")
      ->capture_default_str()
      ->check(CLI::Range(1u, 1024u))
      ->type_name("N");
  command->add_option("--time-limit", options->limit, "Seconds of real time that a test may take")
      ->capture_default_str()
      ->check(numberFrom(0.1, 86400.0))
      ->type_name("S");
  command->footer("Example:\n  tidemark test tests/scripts --filter variables --junit results.xml\n\nExit codes: 0 all "
                  "passed, 1 a test failed, 2 wrong usage, 3 a path cannot be read.");
  command->callback([options, &exitCode] { exitCode = runTestsGuarded(*options); });
  addSingleTest(app, exitCode);
}

}
