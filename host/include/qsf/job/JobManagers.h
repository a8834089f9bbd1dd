#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qsf {

namespace detail {
struct Job;
}

/// The job managers of a frame, in their fixed order: which there are, the game says. Jobs of a manager run in the
/// order of their registration. Owned by Qsf.
class QSF_API JobManagers {
public:
  JobManagers();
  ~JobManagers();
  JobManagers(const JobManagers&) = delete;
  JobManagers& operator=(const JobManagers&) = delete;

  /// What a manager does while the simulation is paused.
  enum class Kind { SIMULATION /**< rests */, REALTIME /**< goes on */ };
  /// Appends a manager, whose id is the hash of its name, and makes the name known. A manager that is there already
  /// stays as it is.
  void addJobManager(const std::string& name, Kind kind);
  /// The manager in which the world's own components move: the first of the simulation. Uninitialised without one.
  StringHash getSimulationManager() const;
  /// One frame: every manager, in order. A job registered inside runs from the next frame on; one unregistered inside
  /// doesn't run any more. A pause holds from the next call on. Called from inside a job it logs an error and does
  /// nothing.
  void runFrame(Time timePassed);

  void setPaused(bool paused) { mPaused = paused; }
  bool isPaused() const { return mPaused; }
  /// Simulation managers rest, as in a pause; the two know nothing of each other.
  void setSimulationHeld(bool held) { mSimulationHeld = held; }
  bool isSimulationHeld() const { return mSimulationHeld; }
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
  bool mSimulationHeld = false;
};

}
