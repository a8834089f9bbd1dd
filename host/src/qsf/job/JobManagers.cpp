#include "qsf/job/JobManagers.h"
#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/job/JobProxy.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"

namespace qsf {

namespace detail {

/// A registered job. Shared by its proxy and its manager, so that a job may end its own registration while it runs.
struct Job {
  JobManagers* managers = nullptr; ///< null once the job is unregistered or the managers are gone
  StringHash managerId;
  JobProxy::JobFunction function;
  jobs::JobConfiguration configuration;
  std::uint64_t firstFrame = 0;
  Time timeBetweenCalls;
  Time timeSinceCall;
};

}

struct JobManagers::Manager {
  StringHash id;
  Kind kind;
  std::vector<std::shared_ptr<detail::Job>> jobs;
  std::size_t endedJobs = 0; ///< that still stand in the list
};

namespace {

std::string getManagerName(StringHash id) {
  const Qsf* host = Qsf::instance();
  const std::string name = host ? host->getStringHashManager().getStringByHash(id) : std::string();
  return name.empty() ? std::to_string(id.getHash()) : name;
}

}

JobManagers::JobManagers() = default;

JobManagers::~JobManagers() {
  // Proxies may outlive the host; their jobs must not point back at it. Functions go last: what they own may hold
  // proxies.
  std::vector<std::shared_ptr<detail::Job>> jobs;
  for (const auto& manager : mManagers)
    for (auto& job : manager->jobs) {
      job->managers = nullptr;
      jobs.push_back(std::move(job));
    }
  mManagers.clear();
}

void JobManagers::addJobManager(const std::string& name, Kind kind) {
  const StringHash id(name);
  if (findManager(id)) return;
  if (const Qsf* host = Qsf::instance()) host->getStringHashManager().registerStringHash(id, name);
  mManagers.push_back(std::make_unique<Manager>(Manager{id, kind, {}}));
}

StringHash JobManagers::getSimulationManager() const {
  for (const auto& manager : mManagers)
    if (manager->kind == Kind::SIMULATION) return manager->id;
  return {};
}

JobManagers::Manager* JobManagers::findManager(StringHash id) const {
  for (const auto& manager : mManagers)
    if (manager->id == id) return manager.get();
  return nullptr;
}

std::size_t JobManagers::getNumberOfJobs(StringHash id) const {
  const Manager* manager = findManager(id);
  if (!manager) return 0;
  return static_cast<std::size_t>(std::count_if(manager->jobs.begin(), manager->jobs.end(),
                                                [](const auto& job) { return job->managers != nullptr; }));
}

void JobManagers::addJob(Manager& manager, const std::shared_ptr<detail::Job>& job) {
  job->managers = this;
  job->managerId = manager.id;
  job->firstFrame = mFrame + 1;
  manager.jobs.push_back(job);
}

void JobManagers::removeJob(detail::Job& job) {
  job.managers = nullptr;
  Manager* manager = findManager(job.managerId);
  if (!manager) return;
  // A frame walks the jobs by index, so they leave the list behind it, and one that runs still needs its function.
  ++manager->endedJobs;
  if (mRunning) return;
  // The function goes at once, since a plug-in may be about to take its code away. The list is closed up when half of
  // it is gone: a map that ends unregisters its jobs one by one.
  const JobProxy::JobFunction function = std::exchange(job.function, {});
  if (manager->endedJobs * 2 > manager->jobs.size()) removeEndedJobs();
}

void JobManagers::removeEndedJobs() {
  // Destroying a job's function may unregister further jobs, so the lists are whole again before any job goes.
  std::vector<std::shared_ptr<detail::Job>> ended;
  for (const auto& manager : mManagers) {
    if (manager->endedJobs == 0) continue;
    manager->endedJobs = 0;
    for (const auto& job : manager->jobs)
      if (!job->managers) ended.push_back(job);
    std::erase_if(manager->jobs, [](const auto& job) { return job->managers == nullptr; });
  }
}

void JobManagers::runFrame(Time timePassed) {
  if (mRunning) {
    logMessage(LogSystem::ERROR, "A job asked for a frame inside a frame; it is left out");
    return;
  }
  const bool simulationRests = mPaused || mSimulationHeld;
  ++mFrame;
  mRunning = true;
  for (std::size_t i = 0; i < mManagers.size(); ++i)
    if (!simulationRests || mManagers[i]->kind != Kind::SIMULATION) runManager(*mManagers[i], timePassed);
  mRunning = false;
  removeEndedJobs();
}

void JobManagers::runManager(Manager& manager, Time timePassed) {
  for (std::size_t i = 0; i < manager.jobs.size(); ++i) {
    const std::shared_ptr<detail::Job> job = manager.jobs[i]; // stays alive if it unregisters itself
    if (!job->managers || job->firstFrame > mFrame) continue;
    job->timeSinceCall += timePassed;
    if (job->timeSinceCall < job->timeBetweenCalls) continue;
    const JobArguments arguments(job->timeSinceCall);
    job->timeSinceCall = Time::ZERO;
    callGuarded([&] { job->function(arguments); }, [&] { return "a job of " + getManagerName(manager.id); });
  }
}

void JobProxy::registerAt(StringHash jobManagerId, const JobFunction& function,
                          const jobs::JobConfiguration& configuration) {
  unregister();
  const Qsf* host = Qsf::instance();
  JobManagers::Manager* manager = host ? host->getJobManagers().findManager(jobManagerId) : nullptr;
  if (!manager) {
    logMessage(LogSystem::WARNING, "There is no job manager " + getManagerName(jobManagerId) + "; the job doesn't run");
    return;
  }
  mJob = std::make_shared<detail::Job>();
  mJob->function = function;
  mJob->configuration = configuration;
  host->getJobManagers().addJob(*manager, mJob);
}

void JobProxy::registerInSimulation(const JobFunction& function) {
  const Qsf* host = Qsf::instance();
  registerAt(host ? host->getJobManagers().getSimulationManager() : StringHash(), function);
}

void JobProxy::unregister() {
  // The member is emptied first: the job's function may own this very proxy.
  const std::shared_ptr<detail::Job> job = std::move(mJob);
  mJob.reset();
  if (job && job->managers) job->managers->removeJob(*job);
}

bool JobProxy::isRegistered() const { return mJob && mJob->managers; }

void JobProxy::changeTimeBetweenCalls(Time time) {
  if (mJob) mJob->timeBetweenCalls = time;
}

}
