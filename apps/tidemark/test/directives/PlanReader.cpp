#include "apps/tidemark/test/directives/PlanReader.h"

#include "apps/tidemark/session/Languages.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace tidemark::test {

namespace {

constexpr const char* DEFAULT_MODE = "MAP_STARTUP_SIMULATION";
constexpr double LONGEST_TEST = 24 * 3600.0; // seconds of simulation; more is a slip of the keyboard
constexpr double SHORTEST_TICK = 1e-6;       // time is counted in microseconds

// A path that stays inside the project's folder.
std::string takePath(WordCursor& words) {
  std::string path = words.take("a path");
  const std::filesystem::path normal = std::filesystem::path(path).lexically_normal();
  if (normal.empty() || normal.is_absolute() || *normal.begin() == ".." || !normal.has_filename() || normal == ".")
    throw DirectiveError(fmt::format("'{}' is no path of a file inside the project", path));
  return path;
}

std::string takeProjectName(WordCursor& words) {
  std::string name = words.take("the project's name");
  if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos ||
      name.find('\0') != std::string::npos)
    throw DirectiveError(fmt::format("'{}' is no name of a project", name));
  if (name == "em5") throw DirectiveError("'em5' is the base project");
  return name;
}

double takePositive(WordCursor& words, std::string_view what, double least, double most) {
  const double value = words.takeNumber(what);
  if (!(value >= least && value <= most))
    throw DirectiveError(fmt::format("{} is not between {} and {}", what, least, most));
  return value;
}

unsigned int takePlayers(WordCursor& words) {
  constexpr std::uint64_t MOST = 4;
  const std::uint64_t players = words.takeId("the number of players");
  if (players < 1 || players > MOST) throw DirectiveError(fmt::format("a game has 1 to {} players", MOST));
  return static_cast<unsigned int>(players);
}

// `on I`, the machine of a game of several; machine 0 without it.
unsigned int takeMachine(WordCursor& words) {
  if (!words.takeIf("on")) return 0;
  return static_cast<unsigned int>(std::min<std::uint64_t>(words.takeId("the machine's number behind 'on'"), 99));
}

// A line with a dollar sign anywhere is a comment to the language.
bool isCode(std::string_view line) {
  return line.find('$') == std::string_view::npos && line.find_first_not_of(" \t\r\n") != std::string_view::npos;
}

std::string keyOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::size_t dot = path.rfind('.');
  const bool hasEnding = dot != std::string::npos && dot > 0 && (slash == std::string::npos || dot > slash + 1);
  return hasEnding ? path.substr(0, dot) : path;
}

}

PlanReader::PlanReader(const std::string& file) {
  mResult.plan.file = file;
  ProjectPlan& test = mResult.plan.projects.emplace_back();
  test.name = "test";
  test.scripts.push_back({"main.script", "main", DEFAULT_MODE, "", 0});
  mText = &test.scripts.front().text;
}

PlanResult PlanReader::read(const std::string& text) {
  int number = 0;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    readLine(std::string_view(text).substr(begin, end - begin), ++number);
    begin = end;
  }
  finish();
  return std::move(mResult);
}

void PlanReader::readLine(std::string_view line, int number) {
  if (mInFile && readRawLine(line)) return;
  if (directiveName(line)) {
    readDirectiveLine(line, number);
    return;
  }
  *mText += line;
  if (!mInMain)
    mainText() += '\n';
  else if (mCodeLine == 0 && isCode(line))
    mCodeLine = number;
}

// Whether the line belongs to the raw file that is being read.
bool PlanReader::readRawLine(std::string_view line) {
  if (directiveName(line) == "end") return false;
  *mText += line;
  mainText() += '\n';
  return true;
}

void PlanReader::readDirectiveLine(std::string_view line, int number) {
  static const std::set<std::string_view> BOUNDS = {"script", "file", "mod", "project", "play", "end"};
  const bool wasInMain = mInMain;
  try {
    const auto directive = readDirective(line, number);
    WordCursor words(directive->words);
    dispatch(*directive, words);
  } catch (const DirectiveError& fault) {
    addFault(number, fmt::format("@{}: {}", *directiveName(line), fault.what()));
  }
  // A directive is a comment of the script in which it stands; those that bound sections stand in main.
  if (wasInMain || BOUNDS.contains(*directiveName(line))) {
    mainText() += line;
  } else {
    *mText += line;
    mainText() += '\n';
  }
}

void PlanReader::dispatch(const Directive& directive, WordCursor& words) {
  if (!readSection(directive, words) && !readScriptSetting(directive, words) && !readGameSetting(directive, words) &&
      !readStep(directive, words))
    throw DirectiveError("unknown directive");
  words.requireEnd();
}

bool PlanReader::readSection(const Directive& directive, WordCursor& words) {
  if (directive.name == "script") {
    beginScript(words);
    project().scripts.back().line = directive.line;
  } else if (directive.name == "file") {
    beginFile(words);
    mFileLine = directive.line;
  } else if (directive.name == "mod") {
    beginProject(directive, words);
  } else if (directive.name == "project") {
    mountProject(directive, words);
  } else if (directive.name == "play") {
    playProject(directive, words);
  } else if (directive.name == "end") {
    mInFile = false;
    mInMain = true;
    mText = &mainText();
  } else {
    return false;
  }
  return true;
}

void PlanReader::beginScript(WordCursor& words) {
  ScriptSection section;
  section.path = takePath(words);
  section.mode = words.atEnd() ? DEFAULT_MODE : words.take("a mode");
  words.requireEnd();
  if (section.mode == "none") section.mode.clear();
  section.key = keyOf(section.path);
  for (const ScriptSection& other : project().scripts)
    if (other.path == section.path) throw DirectiveError(fmt::format("there is a script '{}' already", section.path));
  mText = &project().scripts.emplace_back(std::move(section)).text;
  mInMain = false;
}

void PlanReader::beginFile(WordCursor& words) {
  const std::string path = takePath(words);
  words.requireEnd();
  mText = &project().files.emplace_back(FileSection{path, ""}).text;
  mInMain = false;
  mInFile = true;
}

void PlanReader::beginProject(const Directive& directive, WordCursor& words) {
  ProjectPlan plan;
  plan.name = takeProjectName(words);
  plan.line = directive.line;
  while (!words.atEnd()) {
    if (words.takeIf("disabled"))
      plan.enabled = false;
    else if (words.takeIf("unmounted"))
      plan.mounted = false;
    else
      throw DirectiveError(fmt::format("'{}' is neither disabled nor unmounted", words.peek()->text));
  }
  mInMain = true;
  auto& projects = mResult.plan.projects;
  const auto known =
      std::find_if(projects.begin(), projects.end(), [&](const ProjectPlan& other) { return other.name == plan.name; });
  mProject = static_cast<std::size_t>(known - projects.begin());
  if (known == projects.end()) projects.push_back(std::move(plan));
  mText = &mainText();
}

// An existing folder, relative to the test file.
std::string PlanReader::takeFolder(WordCursor& words) const {
  namespace fs = std::filesystem;
  const fs::path path = words.take("the project's folder");
  const fs::path folder = fs::absolute(fs::path(mResult.plan.file).parent_path() / path).lexically_normal();
  if (std::error_code ignored; !fs::is_directory(folder, ignored))
    throw DirectiveError(fmt::format("there is no folder '{}'", folder.string()));
  return folder.string();
}

void PlanReader::mountProject(const Directive& directive, WordCursor& words) {
  ProjectPlan plan;
  plan.directory = takeFolder(words);
  plan.line = directive.line;
  mResult.plan.projects.push_back(std::move(plan));
  mText = &mainText();
  mInMain = true;
}

void PlanReader::playProject(const Directive& directive, WordCursor& words) {
  ProjectPlan& played = mResult.plan.projects.front();
  if (mResult.plan.playsProject()) throw DirectiveError("a test plays one project");
  played.original = takeFolder(words);
  played.line = directive.line;
  mText = &mainText();
  mInMain = true;
}

bool PlanReader::readScriptSetting(const Directive& directive, WordCursor& words) {
  TestPlan& plan = mResult.plan;
  if (directive.name == "mode") {
    plan.projects.front().scripts.front().mode = words.take("a mode");
  } else if (directive.name == "maps") {
    words.peek() ? void() : throw DirectiveError("a map's name is missing");
    plan.mainMaps = words.takeRest();
  } else if (directive.name == "encoding") {
    const std::string encoding = words.take("an encoding");
    if (encoding != "cp1252") throw DirectiveError(fmt::format("'{}' is no encoding; there is cp1252", encoding));
    plan.encoding = TestPlan::Encoding::CODE_PAGE_1252;
  } else if (directive.name == "eol") {
    const std::string lineEnd = words.take("a line's end");
    if (lineEnd != "crlf") throw DirectiveError(fmt::format("'{}' is no line's end; there is crlf", lineEnd));
    plan.lineEnd = TestPlan::LineEnd::CARRIAGE_RETURN;
  } else {
    return false;
  }
  if (mScriptSettingLine == 0) mScriptSettingLine = directive.line;
  return true;
}

bool PlanReader::readGameSetting(const Directive& directive, WordCursor& words) {
  TestPlan& plan = mResult.plan;
  if (directive.name == "map") {
    plan.map = words.take("the map's name");
    plan.mapLine = directive.line;
  } else if (directive.name == "game") {
    const std::string name = words.take("a game mode");
    const auto mode = em5::parseGameModeType(name);
    if (!mode)
      throw DirectiveError(
          fmt::format("'{}' is no game mode; there are endless challenge campaign coop competitive", name));
    plan.gameMode = *mode;
  } else if (directive.name == "editor") {
    plan.editor = true;
  } else if (directive.name == "gamepad") {
    plan.gamepad = takeGamepadModel(words);
  } else if (directive.name == "docs") {
    plan.docs = true;
  } else if (directive.name == "language") {
    plan.language = words.take("a language");
    if (!isLanguageCode(plan.language))
      throw DirectiveError(fmt::format("'{}' is no language; one is written as in en or pt-BR", plan.language));
  } else if (directive.name == "account") {
    plan.account = words.take("the account's name");
  } else if (directive.name == "players") {
    plan.players = takePlayers(words);
  } else if (directive.name == "peers") {
    readPeers(directive, words);
  } else if (directive.name == "seed") {
    plan.seed = words.takeId("the seed");
  } else if (directive.name == "tick") {
    plan.tick = takePositive(words, "the tick", SHORTEST_TICK, LONGEST_TEST);
  } else if (directive.name == "for") {
    plan.duration = takePositive(words, "the duration", 0, LONGEST_TEST);
    plan.durationLine = directive.line;
  } else {
    return false;
  }
  return true;
}

bool PlanReader::readStep(const Directive& directive, WordCursor& words) {
  TestPlan& plan = mResult.plan;
  if (directive.name == "entity") {
    EntityDirective entity = readEntityDirective(words);
    plan.entities.push_back({directive.line, directive.text, std::move(entity.make)});
    plan.world.push_back({directive.line, directive.text, std::move(entity.equip)});
  } else if (directive.name == "set") {
    plan.world.push_back({directive.line, directive.text, readSetDirective(words)});
  } else if (directive.name == "expect") {
    const unsigned int machine = takeMachine(words);
    Expectation expectation = readExpectation(words);
    expectation.machine = machine;
    expectation.line = directive.line;
    expectation.text = directive.text;
    plan.expectations.push_back(std::move(expectation));
  } else if (directive.name == "at") {
    readTimedStep(directive, words);
  } else {
    return false;
  }
  return true;
}

void PlanReader::readPeers(const Directive& directive, WordCursor& words) {
  constexpr std::uint64_t MOST_MACHINES = 4;
  constexpr std::uint64_t MOST_DELAY = 1000;
  constexpr std::uint64_t MOST_LOSS = 99;
  TestPlan& plan = mResult.plan;
  const auto take = [&words](const char* what, std::uint64_t least, std::uint64_t most) {
    const std::uint64_t value = words.takeId(what);
    if (value < least || value > most)
      throw DirectiveError(fmt::format("{} is not between {} and {}", what, least, most));
    return static_cast<unsigned int>(value);
  };
  plan.machines = take("the number of machines", 2, MOST_MACHINES);
  if (words.takeIf("delay")) plan.delay = take("the delay in frames", 0, MOST_DELAY);
  if (words.takeIf("loss")) plan.loss = take("the loss in percent", 0, MOST_LOSS);
  plan.machinesLine = directive.line;
}

void PlanReader::readTimedStep(const Directive& directive, WordCursor& words) {
  Step step;
  step.line = directive.line;
  step.time = takePositive(words, "the time", 0, LONGEST_TEST);
  step.text = directive.text.substr(std::min(directive.text.find_first_of(" \t"), directive.text.size()));
  step.text.erase(0, std::min(step.text.find_first_not_of(" \t"), step.text.size()));
  step.machine = takeMachine(words);
  if (words.takeIf("expect")) {
    if (words.peekKeyword("on")) step.machine = takeMachine(words);
    Expectation expectation = readExpectation(words);
    expectation.machine = step.machine;
    if (expectation.moment == Expectation::Moment::AFTER_SHUTDOWN)
      throw DirectiveError("'after shutdown' has its own time; write it without @at");
    expectation.line = step.line;
    expectation.text = step.text;
    expectation.moment = Expectation::Moment::TIMED;
    step.expectation = std::move(expectation);
  } else {
    step.action = readAction(words);
  }
  mResult.plan.steps.push_back(std::move(step));
}

void PlanReader::finish() {
  TestPlan& plan = mResult.plan;
  if (mInFile) addFault(mFileLine, "@file: its '$ @end' is missing");
  if (plan.playsProject()) finishPlay();
  std::stable_sort(plan.steps.begin(), plan.steps.end(),
                   [&](const Step& a, const Step& b) { return plan.framesUntil(a.time) < plan.framesUntil(b.time); });
  checkTimes();
  checkMachines();
  const bool expects =
      !plan.expectations.empty() ||
      std::any_of(plan.steps.begin(), plan.steps.end(), [](const Step& step) { return step.expectation.has_value(); });
  if (!expects && mResult.faults.empty()) addFault(1, "the test expects nothing; it needs an @expect");
}

// The played project has scripts and a map of its own.
void PlanReader::finishPlay() {
  ProjectPlan& played = mResult.plan.projects.front();
  if (mCodeLine > 0) addFault(mCodeLine, "a line of a script; a test with @play holds directives only");
  if (mScriptSettingLine > 0) addFault(mScriptSettingLine, "a project that is played lists its scripts itself");
  for (std::size_t i = 1; i < played.scripts.size(); ++i)
    addFault(played.scripts[i].line,
             "@script: a project that is played has its own scripts; another belongs to a @mod");
  played.scripts.clear();
  if (mResult.plan.mapLine > 0) return;
  try {
    mResult.plan.map = findMapOfProject(played.original).value_or(DEFAULT_MAP);
    mResult.plan.mapLine = played.line;
  } catch (const std::exception& wrong) {
    addFault(played.line, fmt::format("@play: {}", wrong.what()));
  }
}

void PlanReader::checkTimes() {
  const TestPlan& plan = mResult.plan;
  for (const Step& step : plan.steps)
    if (plan.framesUntil(step.time) > plan.numberOfFrames())
      addFault(step.line, fmt::format("@at: {} s is behind the end of the test, which runs {} s; write '@for {}'",
                                      step.time, plan.duration, step.time));
}

void PlanReader::checkMachines() {
  const TestPlan& plan = mResult.plan;
  if (plan.machines > 1 && plan.editor) addFault(plan.machinesLine, "@peers: an editing session has one machine");
  const auto checkMachine = [&](int line, unsigned int machine) {
    if (machine >= plan.machines)
      addFault(line, fmt::format("on: there is no machine {}; {}", machine,
                                 plan.machines > 1 ? fmt::format("the test has {}, from 0", plan.machines)
                                                   : "'@peers 2' makes the test a game of two machines"));
  };
  for (const Step& step : plan.steps)
    checkMachine(step.line, step.machine);
  for (const Expectation& expectation : plan.expectations)
    checkMachine(expectation.line, expectation.machine);
}

PlanResult readPlan(const std::string& file, const std::string& text) { return PlanReader(file).read(text); }

}
