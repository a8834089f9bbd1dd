#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"
#include "qsf/job/JobArguments.h"
#include "qsf/job/JobConfiguration.h"

#include <boost/function.hpp>

#include <memory>

namespace qsf {

namespace detail {
struct Job;
}

/// Keeps one job registered. Owned by whoever does the work; the destructor unregisters, also from inside the job's own
/// call. A fault that escapes the job is logged and costs that call.
class QSF_API JobProxy {
public:
  using JobFunction = boost::function<void(const JobArguments&)>;

  JobProxy() = default;
  ~JobProxy() { unregister(); }
  JobProxy(const JobProxy&) = delete;
  JobProxy& operator=(const JobProxy&) = delete;

  /// Registers the job at the end of the manager of that name, replacing what the proxy had. It runs from the next
  /// frame on. An unknown manager logs a warning and leaves the proxy unregistered.
  void registerAt(StringHash jobManagerId, const JobFunction& function,
                  const jobs::JobConfiguration& configuration = jobs::JobConfiguration());
  /// The same at the manager in which the world's own components move (JobManagers::getSimulationManager).
  void registerInSimulation(const JobFunction& function);
  void unregister();
  bool isRegistered() const;
  /// Least simulated time between two calls; zero means each frame.
  void changeTimeBetweenCalls(Time time);

private:
  std::shared_ptr<detail::Job> mJob;
};

}
