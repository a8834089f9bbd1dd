#pragma once
#include "apps/tidemark/session/Maps.h"
#include "apps/tidemark/test/LogBook.h"
#include "apps/tidemark/test/directives/Words.h"

#include "em5/game/GameSessionConfiguration.h"
#include "qsf/input/OisManager.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tidemark::test {

class TestSession;

/// What a check saw.
struct Verdict {
  bool holds = false;
  std::string found;               ///< for the failure's report
  std::vector<std::string> around; ///< log lines that explain it; empty: the last ones
};

/// Something that a directive does to the running test. Throws DirectiveError for an unknown thing, NotThere for a
/// missing one.
using Action = std::function<void(TestSession&)>;

struct Expectation {
  int line = 0;
  unsigned int machine = 0; ///< the one that judges
  std::string text;         ///< as written, behind `expect`
  std::function<Verdict(TestSession&)> check;
  /// Log lines that it names; `no other log` lets them pass.
  std::vector<LogPattern> logs;
  /// Texts of hints that it names.
  std::vector<std::string> hints;
  /// Names of messages whose filters it asks for.
  std::vector<std::string> messages;
  enum class Moment { TIMED, END, AFTER_SHUTDOWN } moment = Moment::END;
};

/// An action or expectation at a time.
struct Step {
  int line = 0;
  unsigned int machine = 0; ///< where it happens
  std::string text;
  double time = 0; ///< seconds
  Action action;   ///< empty for an expectation
  std::optional<Expectation> expectation;
};

/// A part of a world directive, `@entity` or `@set`.
struct WorldLine {
  int line = 0;
  std::string text;
  Action action;
};

/// A script of a project that the test brings along.
struct ScriptSection {
  std::string path; ///< below x64/tidemark
  std::string key;  ///< its name in MapScript.json
  std::string mode; ///< empty: installed, not listed
  std::string text;
  int line = 0;
};

struct FileSection {
  std::string path; ///< below the project's folder
  std::string text;
};

/// A project to mount: one that the test brings along, an existing folder, or a copy of one.
struct ProjectPlan {
  std::string name;
  std::string directory; ///< of an existing project, absolute; empty for one that the test brings along
  std::string original;  ///< folder of which the test brings a copy along, absolute; empty for none
  bool enabled = true;
  bool mounted = true;
  std::vector<ScriptSection> scripts;
  std::vector<FileSection> files;
  int line = 0;
};

/// An entry of the catalogue that does nothing, or gives that answer, while a test runs; see docs/testing.md.
struct BlankedEntry {
  std::string name; ///< empty: none
  bool answer = false;
};

/// All that a test file asks for. The first project is `test`, its first script `main`; a test that plays an existing
/// project has a copy of that in their place.
struct TestPlan {
  std::string file;
  std::vector<ProjectPlan> projects;
  std::vector<std::string> mainMaps{"All"};
  enum class Encoding { AS_WRITTEN, CODE_PAGE_1252 } encoding = Encoding::AS_WRITTEN;
  enum class LineEnd { AS_WRITTEN, CARRIAGE_RETURN } lineEnd = LineEnd::AS_WRITTEN;
  std::string map = DEFAULT_MAP;
  int mapLine = 0; ///< of the directive that names it; 0: none does
  em5::GameModeType gameMode = em5::GameModeType::FREEPLAY_ENDLESS;
  bool editor = false;
  std::optional<qsf::GamepadModel> gamepad; ///< plugged in before the module loads
  bool docs = false; ///< the module leaves its reference files in the working directory, as in the game
  std::string language = "en";
  std::string account;
  unsigned int players = 1;
  unsigned int machines = 1; ///< more than one: a multiplayer game, a player at each
  unsigned int delay = 0;    ///< of its network, in frames
  unsigned int loss = 0;     ///< of its network, in percent
  int machinesLine = 0;
  std::uint64_t seed = 1;
  double tick = 0.05;    ///< seconds
  double duration = 1.0; ///< seconds
  int durationLine = 0;
  BlankedEntry blanked;            ///< not the file's, but the program's
  std::vector<WorldLine> entities; ///< make the entities
  std::vector<WorldLine> world;    ///< set what they and others have; in the order of the lines
  std::vector<Step> steps;         ///< by time; equal times in the order of the lines
  std::vector<Expectation> expectations;

  /// True if an existing project takes the place of the test's own.
  bool playsProject() const { return !projects.front().original.empty(); }
  /// Log lines and texts of hints that expectations name, those with a time included.
  std::vector<LogPattern> namedLines() const;
  std::vector<std::string> namedHints() const;
  /// Names of messages whose filters expectations ask for.
  std::vector<std::string> watchedMessages() const;
  std::uint64_t framesUntil(double seconds) const;
  std::uint64_t numberOfFrames() const { return framesUntil(duration); }
};

/// A fault of a directive with its line.
struct PlanFault {
  int line;
  std::string text;
};

struct PlanResult {
  TestPlan plan;
  std::vector<PlanFault> faults; ///< not empty: the test fails and isn't run
};

/// Reads a test file's text. `file` is its path, for messages and for paths that are relative to it.
PlanResult readPlan(const std::string& file, const std::string& text);

}
