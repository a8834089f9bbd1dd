// `tidemark run`: its options.
#include "apps/tidemark/Options.h"
#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/run/Runner.h"
#include "apps/tidemark/session/WritableFolders.h"

#include <CLI/CLI.hpp>

#include <map>
#include <memory>

namespace tidemark::run {

namespace {

constexpr double LONGEST_RUN = 1e7; // seconds
constexpr double SHORTEST_TICK = 1e-6;

template <class Value> using Names = std::map<std::string, Value>;

const Names<em5::GameModeType> GAME_MODES = {{"endless", em5::GameModeType::FREEPLAY_ENDLESS},
                                             {"challenge", em5::GameModeType::FREEPLAY_CHALLENGE},
                                             {"campaign", em5::GameModeType::CAMPAIGN},
                                             {"coop", em5::GameModeType::MULTIPLAY_COOP},
                                             {"competitive", em5::GameModeType::MULTIPLAY_COMPETITIVE}};
const Names<int> LOG_LEVELS = {{"trace", 0}, {"debug", 1}, {"info", 2}, {"warning", 3}, {"error", 4}, {"none", 5}};
const Names<RunOptions::LogFormat> LOG_FORMATS = {{"text", RunOptions::LogFormat::TEXT},
                                                  {"jsonl", RunOptions::LogFormat::JSON_LINES}};

// Pages of the documents that are visible.
void addScreenOptions(CLI::App& command, RunOptions& options, CLI::Option& peers) {
  CLI::Option* screens =
      command
          .add_option("--screens", options.screens,
                      "Write the documents that are visible at the end to this folder, as pages for a browser; "
                      "index.html shows them together")
          ->check(notEmpty("a folder"))
          ->excludes(&peers)
          ->type_name("DIR");
  command
      .add_option("--screens-at", options.screensAt,
                  "Write those of this moment, too, in simulated seconds; can be repeated")
      ->check(numberFrom(0.0, LONGEST_RUN))
      ->allow_extra_args(false)
      ->needs(screens)
      ->type_name("S");
}

// A game with other computers.
void addNetworkOptions(CLI::App& command, RunOptions& options, CLI::Option& peers, CLI::Option& editor) {
  peers.excludes(&editor);
  CLI::Option* rate =
      command
          .add_option("--sync-rate", options.syncRate,
                      "How often a second the host tells the others of changed properties that are kept alike")
          ->capture_default_str()
          ->check(CLI::IsMember({5u, 10u, 20u}))
          ->type_name("N");
  CLI::Option* serve =
      command
          .add_option_function<std::string>(
              "--serve", [&options](const std::string& address) { options.serve = address; },
              "Play at the clock's pace and let other computers join, up to three; without an address at 127.0.0.1, a "
              "port of the system's choice. 0.0.0.0 is every address of this computer")
          ->expected(0, 1)
          ->excludes(&peers)
          ->excludes(&editor)
          ->type_name("[ADDRESS:PORT]");
  command
      .add_option_function<std::string>(
          "--join", [&options](const std::string& address) { options.join = address; },
          "Join a game that another computer serves, with its map and at its pace")
      ->excludes(&peers)
      ->excludes(&editor)
      ->excludes(serve)
      ->excludes(rate)
      ->type_name("ADDRESS:PORT");
  command.add_flag("--allow-difference", options.allowDifference,
                   "Let machines join whose scripts are not the host's; triggers that both don't have then get lost");
}

void addOptions(CLI::App& command, RunOptions& options) {
  command.add_option("project", options.projects, "Folders of projects, mounted in this order after the base project")
      ->required()
      ->check(notEmpty("a project's folder"))
      ->type_name("PROJECT");
  command
      .add_option("--map", options.map,
                  "Map to play; else the one that a project.json names in \"map\", else an empty one")
      ->check(notEmpty("a map's name"))
      ->type_name("NAME");
  command.add_option("--seconds", options.seconds, "How long to run, in simulated seconds")
      ->capture_default_str()
      ->check(numberFrom(0.0, LONGEST_RUN))
      ->type_name("S");
  command.add_option("--tick", options.tick, "Length of a frame in seconds")
      ->capture_default_str()
      ->check(numberFrom(SHORTEST_TICK, LONGEST_RUN))
      ->type_name("S");
  command.add_flag_callback(
      "--realtime", [&options] { options.pace = RunOptions::Pace::REAL_TIME; },
      "Run as fast as the clock, not as fast as possible");
  CLI::Option* editor = command.add_flag_callback(
      "--editor", [&options] { options.program = RunOptions::Program::EDITOR; },
      "Run an editing session: only scripts of the mode EDITOR_STARTUP start");
  addChoice(command, "--mode", GAME_MODES, options.gameMode, "Game mode");
  command.add_option("--language", options.language, "Language of texts")
      ->capture_default_str()
      ->check(languageCode())
      ->type_name("CODE");
  command.add_option("--seed", options.seed, "Seed of everything random; equal seeds give equal runs")
      ->capture_default_str()
      ->check(wholeNumber())
      ->type_name("N");
  CLI::Option* peers = command
                           .add_option("--peers", options.machines,
                                       "Play a multiplayer game of so many machines, all on this computer and in "
                                       "step; the table then tells in what they have come apart")
                           ->check(CLI::Range(2u, 4u))
                           ->type_name("N");
  command.add_option("--delay", options.delay, "Frames that a message between the machines takes, beyond the next one")
      ->capture_default_str()
      ->check(CLI::Range(0u, 1000u))
      ->needs(peers)
      ->type_name("FRAMES");
  command.add_option("--loss", options.loss, "Percent of the messages that are lost once and come later")
      ->capture_default_str()
      ->check(CLI::Range(0u, 99u))
      ->needs(peers)
      ->type_name("PERCENT");
  addNetworkOptions(command, options, *peers, *editor);
  addScreenOptions(command, options, *peers);
  addChoice(command, "--log-level", LOG_LEVELS, options.logLevel, "Least severity of log lines that are shown");
  addChoice(command, "--log-format", LOG_FORMATS, options.logFormat, "How log lines are written");
  CLI::Option* noHints = command.add_flag_callback(
      "--no-hints", [&options] { options.hints = false; },
      "Don't tell what the language passes over without a word: mistyped components, operators, names that nobody "
      "wrote");
  command
      .add_flag_callback(
          "--strict", [&options] { options.strict = true; }, "Hints count as faults")
      ->excludes(noHints);
  addAllowWrite(command, options.allowWrite);
  command.add_flag_callback(
      "--write-docs", [&options] { options.writeDocs = true; },
      "Leave the module's reference files in the working directory, as the game does at each start");
  command
      .add_option("--report", options.report,
                  "Write the final table to this file, as JSON; - is standard output, which then has no other table")
      ->type_name("FILE");
}

std::function<int()> declareRun(CLI::App& command) {
  auto options = std::make_shared<RunOptions>();
  addOptions(command, *options);
  return [options] { return runProjects(*options); };
}

}

}

namespace tidemark {

Subcommand runCommand() {
  return {"run", "Run the scripts of projects on a map, without the game",
          "Example:\n  tidemark run examples/harbour --seconds 30 --report result.json\n\nThe working directory of the "
          "run is the folder of the first project; scripts write nowhere else. The log goes to standard error, "
          "the\nfinal table to standard output. "
          "Ctrl-C ends the run early, with its table.\nExit codes: 0 fine, 1 a script faulted or has a line that is "
          "dropped, 2 wrong usage, 3 an "
          "input cannot be loaded or the report not be written.",
          run::declareRun};
}

}
