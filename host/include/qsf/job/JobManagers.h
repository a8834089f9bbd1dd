#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace qsf {

namespace detail {
struct Job;
}

/// The job managers of a frame, in their fixed order. Jobs of a manager run in the order of their registration. Owned
/// by Qsf.
class QSF_API JobManagers {
public:
  JobManagers();
  ~JobManagers();
  JobManagers(const JobManagers&) = delete;
  JobManagers& operator=(const JobManagers&) = delete;

  /// Appends a manager. A simulation manager rests while the simulation is paused.
  void addJobManager(StringHash id, bool isSimulation);
  /// One frame: every manager, in order. A job registered inside runs from the next frame on; one unregistered inside
  /// doesn't run any more. A pause holds from the next call on. Called from inside a job it logs an error and does
  /// nothing.
  void runFrame(Time timePassed);

  void setPaused(bool paused) { mPaused = paused; }
  bool isPaused() const { return mPaused; }
  /// Registered jobs of a manager; 0 for an unknown manager.
  std::size_t getNumberOfJobs(StringHash id) const;

private:
  friend class JobProxy;
  struct Manager;
  Manager* findManager(StringHash id) const;
  void addJob(Manager& manager, const std::shared_ptr<detail::Job>& job);
  void removeJob(detail::Job& job);
  void runManager(Manager& manager, Time timePassed);
  void removeEndedJobs();

  std::vector<std::unique_ptr<Manager>> mManagers;
  std::uint64_t mFrame = 0;
  bool mRunning = false;
  bool mPaused = false;
};

}
