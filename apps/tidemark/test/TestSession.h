#pragma once
#include "apps/tidemark/test/LogBook.h"
#include "apps/tidemark/test/MessageBook.h"
#include "apps/tidemark/test/Notes.h"
#include "apps/tidemark/test/TestPlan.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "game_plugin/tooling/Tooling.h"
#include "qsf/log/LogSystem.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace em5 {
class HostSession;
}
namespace qsf {
class Entity;
}

namespace tidemark {
class LoadedModule;
}
namespace tidemark::platform {
class BlockSocket;
}

namespace tidemark::test {

class Peer;

/// Something that an expectation or action names isn't there at this moment. An expectation then fails with this text.
class NotThere : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// One failed expectation or faulty directive.
struct Failure {
  int line = 0; ///< 0: the test as a whole
  enum class Kind { EXPECTATION, ERROR } kind = Kind::EXPECTATION;
  std::string expected; ///< the text of the error for an ERROR
  std::string found;
  std::vector<std::string> log;
};

/// What a test has come to.
struct Outcome {
  std::vector<Failure> failures;
  std::vector<Note> notes;
};

/// A test that runs: the host, the module and the clock, and what steps ask of them. Lives for one test in a process of
/// its own, with the folder of the project `test` as working directory.
class TestSession {
public:
  /// `projects` holds the installed projects of the plan, by name; scripts may write below the folders `writable` only.
  /// Throws std::runtime_error if the base project isn't found.
  TestSession(const TestPlan& plan, std::string projects, std::vector<std::string> writable);
  /// One machine of the plan's several; the socket leads to the process that runs them.
  TestSession(const TestPlan& plan, std::string projects, std::vector<std::string> writable, unsigned int machine,
              platform::BlockSocket& socket);
  ~TestSession();
  TestSession(const TestSession&) = delete;
  TestSession& operator=(const TestSession&) = delete;

  /// Called with each log line as it comes; a crash leaves what was written so.
  void setLogEcho(std::function<void(const qsf::LogSystem::Record&)> echo) { mLogEcho = std::move(echo); }

  /// From the host's start to its end. Throws nothing.
  Outcome run();

  const TestPlan& plan() const { return mPlan; }
  const LogBook& log() const { return mLog; }
  const MessageBook& messages() const { return mMessages; }
  /// The running events as they were saved last; nothing if they never were.
  std::optional<std::string>& savedEvents() { return mSavedEvents; }
  em5::HostSession& host() const { return *mHost; }
  script::tooling::Tooling& tooling() const;
  /// This machine among those of the game. Throws DirectiveError if the test has one machine only.
  Peer& peer() const;

  /// The verdict of a check, which fails if something that it names isn't there.
  static Verdict judge(const std::function<Verdict()>& check);

  /// A script by its key, with `#2` for the second running instance. Throws NotThere.
  std::size_t findScript(const std::string& name) const;
  /// True if the test's project has a script of that name, known to the module or not.
  bool isScriptInstalled(const std::string& name) const;
  /// The id that the reference stands for now. Throws NotThere.
  std::uint64_t resolve(const EntityReference& reference) const;
  /// Throws NotThere.
  qsf::Entity& findEntity(std::uint64_t id) const;

private:
  void runHost();
  void startHost();
  void keepLine(const qsf::LogSystem::Record& record);
  void guard(int line, const std::string& text, const std::function<void()>& part);
  void prepareMap();
  void runSteps(std::uint64_t frame);
  void runStep(const Step& step);
  void check(const Expectation& expectation);
  void fail(int line, const std::string& fault, const std::string& text);

  unsigned int machine() const;
  void checkAll(Expectation::Moment moment);

  const TestPlan& mPlan;
  std::unique_ptr<Peer> mPeer; ///< null for a test of one machine; outlives the host
  std::string mProjects;
  std::string mBaseProject;
  std::vector<std::string> mWritable;
  LogBook mLog;
  MessageBook mMessages;
  std::function<void(const qsf::LogSystem::Record&)> mLogEcho;
  std::unique_ptr<LoadedModule> mModule; ///< outlives the host
  std::unique_ptr<em5::HostSession> mHost;
  std::size_t mNextStep = 0;
  std::uint64_t mFrame = 0; ///< the one that runs, or ran last; 0 before the first
  bool mCompleted = false;
  std::optional<std::string> mSavedEvents;
  Outcome mOutcome;
};

}
