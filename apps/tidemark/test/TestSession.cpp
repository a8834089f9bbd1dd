#include "apps/tidemark/test/TestSession.h"

#include "apps/tidemark/session/Installation.h"
#include "apps/tidemark/session/Maps.h"
#include "apps/tidemark/session/ModuleAccess.h"
#include "apps/tidemark/session/WritableFolders.h"
#include "apps/tidemark/test/Peer.h"
#include "apps/tidemark/test/project/ProjectWriter.h"
#include "apps/tidemark/test/steps/ScriptScope.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>

namespace tidemark::test {

namespace {

// A fault that has been noted and ends the test.
struct Aborted {};

}

TestSession::TestSession(const TestPlan& plan, std::string projects, std::vector<std::string> writable)
    : mPlan(plan), mProjects(std::move(projects)), mBaseProject(baseProjectDirectory()),
      mWritable(std::move(writable)) {}

TestSession::TestSession(const TestPlan& plan, std::string projects, std::vector<std::string> writable,
                         unsigned int machine, platform::BlockSocket& socket)
    : TestSession(plan, std::move(projects), std::move(writable)) {
  mPeer = std::make_unique<Peer>(machine, plan.machines, socket);
}

TestSession::~TestSession() = default;

Peer& TestSession::peer() const {
  if (!mPeer) throw DirectiveError("the test has one machine only; '@peers 2' makes it a multiplayer game");
  return *mPeer;
}

unsigned int TestSession::machine() const { return mPeer ? mPeer->index() : 0; }

script::tooling::Tooling& TestSession::tooling() const { return mModule->tooling(); }

Outcome TestSession::run() {
  try {
    runHost();
  } catch (const Aborted&) {
  } catch (const std::exception& fault) {
    fail(0, fault.what(), "");
  }
  mHost.reset();
  mModule.reset();
  // What an aborted test would have logged tells nothing.
  if (mCompleted) checkAll(Expectation::Moment::AFTER_SHUTDOWN);
  return std::move(mOutcome);
}

void TestSession::runHost() {
  startHost();
  const qsf::Time tick = qsf::Time::fromSeconds(mPlan.tick);
  const std::uint64_t frames = mPlan.numberOfFrames();
  runSteps(0);
  while (mFrame < frames) {
    ++mFrame;
    mHost->runFrame(tick);
    runSteps(mFrame);
  }
  checkAll(Expectation::Moment::END);
  mOutcome.notes = collectNotes(*this, mProjects);
  mCompleted = true;
}

void TestSession::startHost() {
  em5::HostSession::Options options;
  options.kind = mPlan.editor ? em5::HostSession::Kind::EDITOR : em5::HostSession::Kind::GAME;
  options.seed = mPlan.seed;
  options.language = mPlan.language;
  options.gameMode = mPlan.gameMode;
  options.account = mPlan.account;
  options.players = std::max(mPlan.players, mPlan.machines);
  options.localPlayer = machine();
  options.logThreshold = qsf::LogSystem::TRACE;
  mModule = std::make_unique<LoadedModule>();
  tooling().switchHints(true);
  tooling().switchReferenceFiles(mPlan.docs);
  tooling().blankEntry(mPlan.blanked.name, mPlan.blanked.answer);
  mHost = std::make_unique<em5::HostSession>(options);
  limitHostWrites(mWritable);
  mHost->getQsf().getLogSystem().addListener([this](const qsf::LogSystem::Record& record) { keepLine(record); });
  if (mPlan.gamepad) mHost->getQsf().getInputSystem().getOisManager().plugIn(*mPlan.gamepad);
  for (const std::string& message : mPlan.watchedMessages())
    mMessages.watch(qsf::StringHash(message).getHash());
  mHost->getQsf().getMessageSystem().addObserver([this](const qsf::MessageConfiguration& message) {
    mMessages.add(message.getId().getHash(), message.getFilters());
  });
  mHost->mountBaseProject(mBaseProject);
  for (const ProjectPlan& project : mPlan.projects)
    guard(project.line, "", [&] {
      mHost->mountMod(projectDirectory(project, mProjects), {.mounted = project.mounted, .enabled = project.enabled});
    });
  mHost->startup();
  if (!mHost->loadPlugin(modulePath())) throw std::runtime_error("the module refuses to start");
  if (mPeer) mPeer->join(*mHost);
  mHost->setMapPreparation([this](qsf::Map&) { prepareMap(); });
  guard(mPlan.mapLine, "", [this] {
    requireMap(mHost->getQsf().getProjectManager(), mPlan.map);
    mHost->startGame(mPlan.map);
  });
}

void TestSession::keepLine(const qsf::LogSystem::Record& record) {
  mLog.add(record.severity, record.message, mFrame, tooling().getOrigin());
  if (mLogEcho) mLogEcho(record);
}

// A fault of a part of the test ends the test; it is told with the line that asked for the part.
void TestSession::guard(int line, const std::string& text, const std::function<void()>& part) {
  try {
    part();
  } catch (const Aborted&) {
    throw;
  } catch (const std::exception& fault) {
    fail(line, fault.what(), text);
    throw Aborted();
  }
}

// What the directives put on the map belongs to the map of the test: it is there again after a restart, and not on
// another map.
void TestSession::prepareMap() {
  if (mHost->getQsf().getMainMap().getLocalAssetName() != mPlan.map) return;
  for (const std::vector<WorldLine>* lines : {&mPlan.entities, &mPlan.world})
    for (const WorldLine& line : *lines)
      guard(line.line, line.text, [&] { line.action(*this); });
}

void TestSession::runSteps(std::uint64_t frame) {
  while (mNextStep < mPlan.steps.size() && mPlan.framesUntil(mPlan.steps[mNextStep].time) <= frame)
    runStep(mPlan.steps[mNextStep++]);
}

void TestSession::runStep(const Step& step) {
  if (step.machine != machine()) return;
  if (step.expectation) {
    check(*step.expectation);
    return;
  }
  guard(step.line, step.text, [&] { step.action(*this); });
}

void TestSession::checkAll(Expectation::Moment moment) {
  for (const Expectation& expectation : mPlan.expectations)
    if (expectation.moment == moment && expectation.machine == machine()) check(expectation);
}

void TestSession::check(const Expectation& expectation) {
  Verdict verdict;
  try {
    verdict = judge([&] { return expectation.check(*this); });
  } catch (const std::exception& fault) {
    fail(expectation.line, fault.what(), expectation.text);
    return;
  }
  if (verdict.holds) return;
  mOutcome.failures.push_back({expectation.line, Failure::Kind::EXPECTATION, expectation.text, std::move(verdict.found),
                               verdict.around.empty() ? mLog.last() : std::move(verdict.around)});
}

Verdict TestSession::judge(const std::function<Verdict()>& check) {
  try {
    return check();
  } catch (const NotThere& missing) {
    return {false, missing.what(), {}};
  }
}

void TestSession::fail(int line, const std::string& fault, const std::string& text) {
  mOutcome.failures.push_back(
      {line, Failure::Kind::ERROR, text.empty() ? fault : fmt::format("{}: {}", text, fault), "", mLog.last()});
}

bool TestSession::isScriptInstalled(const std::string& name) const {
  const std::string plain = name.substr(0, name.rfind('#'));
  for (const ProjectPlan& project : mPlan.projects)
    for (const ScriptSection& section : project.scripts)
      if (section.key == plain || plain.ends_with("/" + section.path) || plain == section.path) return true;
  // Scripts of a played project, by key or path: the working directory is its folder.
  std::error_code ignored;
  return mPlan.playsProject() && (std::filesystem::is_regular_file("x64/tidemark/" + plain + ".script", ignored) ||
                                  std::filesystem::is_regular_file(plain, ignored));
}

std::size_t TestSession::findScript(const std::string& name) const {
  const std::vector<script::tooling::ScriptView> scripts = tooling().getScripts();
  const auto nthRunning = [&](std::string_view key, std::uint64_t number) {
    return std::find_if(scripts.begin(), scripts.end(),
                        [&](const auto& script) { return script.key == key && script.running && --number == 0; });
  };
  auto found = nthRunning(name, 1);
  if (found == scripts.end())
    found = std::find_if(scripts.begin(), scripts.end(), [&](const auto& script) { return script.key == name; });
  const std::size_t mark = name.rfind('#');
  if (found == scripts.end() && mark != std::string::npos)
    if (const auto number = parseId(std::string_view(name).substr(mark + 1)); number && *number > 0)
      found = nthRunning(std::string_view(name).substr(0, mark), *number);
  if (found != scripts.end()) return static_cast<std::size_t>(found - scripts.begin());
  std::string known;
  for (const auto& script : scripts)
    known += fmt::format("{}'{}'{}", known.empty() ? "" : ", ", script.key, script.running ? "" : " (stopped)");
  throw NotThere(fmt::format("no script '{}'; the module knows {}", name, known.empty() ? "none" : known));
}

std::uint64_t TestSession::resolve(const EntityReference& reference) const {
  if (reference.list.empty()) return reference.id;
  const auto list = findList(*this, reference.list);
  if (!list) throw NotThere(fmt::format("no list '{}'", reference.list));
  if (reference.index >= list->size())
    throw NotThere(fmt::format("list '{}' holds {} ids", reference.list, list->size()));
  return (*list)[reference.index];
}

qsf::Entity& TestSession::findEntity(std::uint64_t id) const {
  if (qsf::Entity* entity = mHost->getQsf().getMainMap().getEntityById(id)) return *entity;
  throw NotThere(fmt::format("there is no entity {}", id));
}

}
