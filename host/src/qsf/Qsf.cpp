#include "qsf/Qsf.h"
#include "em5/base/Jobs.h"
#include "qsf/asset/Project.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/Random.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/component/HostComponents.h"
#include "qsf/input/InputSystem.h"
#include "qsf/job/JobManagers.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/plugin/PluginSystem.h"
#include "qsf/prototype/PrototypeManager.h"
#include "qsf/window/WindowApplication.h"

#include <cassert>

namespace qsf {

namespace {

Qsf* sInstance = nullptr;

void addJobManagers(JobManagers& managers, StringHashManager& names) {
  struct Row {
    const char* name;
    StringHash id;
    bool isSimulation;
  };
  const Row rows[] = {{"em5::Jobs::SIMULATION_LOGIC", em5::Jobs::SIMULATION_LOGIC, true},
                      {"em5::Jobs::SIMULATION_FIRE", em5::Jobs::SIMULATION_FIRE, true},
                      {"em5::Jobs::ANIMATION_VEHICLE", em5::Jobs::ANIMATION_VEHICLE, false},
                      {"em5::Jobs::REALTIME_GUI_DEBUG", em5::Jobs::REALTIME_GUI_DEBUG, false}};
  for (const Row& row : rows) {
    assert(StringHash(row.name) == row.id);
    names.registerStringHash(row.id, row.name);
    managers.addJobManager(row.id, row.isSimulation);
  }
}

}

/// In the order of construction; each may use those above it for as long as it lives.
struct Qsf::Systems {
  std::unique_ptr<LogSystem> log;
  std::unique_ptr<FaultCounter> faultCounter;
  std::unique_ptr<StringHashManager> stringHashManager;
  std::unique_ptr<CallRecorder> callRecorder;
  std::unique_ptr<MessageSystem> messageSystem;
  std::unique_ptr<JobManagers> jobManagers;
  std::unique_ptr<ProjectManager> projectManager;
  std::unique_ptr<PrototypeManager> prototypeManager;
  std::unique_ptr<LocalizationSystem> localizationSystem;
  std::unique_ptr<InputSystem> inputSystem;
  std::unique_ptr<WindowApplication> windowApplication;
  std::unique_ptr<LayerManager> layerManager;
  std::unique_ptr<Map> mainMap;
  std::unique_ptr<PluginSystem> pluginSystem;
};

Qsf::Qsf() : mSystems(std::make_unique<Systems>()) {
  assert(!sInstance);
  sInstance = this;
  Random::setSeed(0); // a host that nobody seeds is still the same every time
  Systems& systems = *mSystems;
  systems.log = std::make_unique<LogSystem>();
  systems.faultCounter = std::make_unique<FaultCounter>();
  systems.stringHashManager = std::make_unique<StringHashManager>();
  systems.callRecorder = std::make_unique<CallRecorder>();
  systems.messageSystem = std::make_unique<MessageSystem>();
  systems.jobManagers = std::make_unique<JobManagers>();
  addJobManagers(*systems.jobManagers, *systems.stringHashManager);
  declareHostClasses();
  systems.projectManager = std::make_unique<ProjectManager>();
  systems.prototypeManager = std::make_unique<PrototypeManager>();
  systems.localizationSystem = std::make_unique<LocalizationSystem>();
  systems.inputSystem = std::make_unique<InputSystem>();
  systems.windowApplication = std::make_unique<WindowApplication>();
  systems.layerManager = std::make_unique<LayerManager>();
  systems.mainMap = std::make_unique<Map>();
  systems.pluginSystem = std::make_unique<PluginSystem>();
}

Qsf::~Qsf() {
  // Plug-ins go while all they use is still there; then the map, whose components' classes may be theirs.
  mSystems->mainMap->clear();
  mSystems->prototypeManager->clear();
  mSystems->pluginSystem->unloadPlugins();
  mSystems->pluginSystem.reset();
  mSystems->mainMap.reset();
  mSystems->layerManager.reset();
  mSystems->inputSystem.reset();
  mSystems->localizationSystem.reset();
  mSystems->prototypeManager.reset();
  mSystems->projectManager.reset();
  mSystems->jobManagers.reset();
  mSystems->messageSystem.reset();
  sInstance = nullptr; // from here on nothing logs any more
}

Qsf* Qsf::instance() { return sInstance; }

LogSystem& Qsf::getLogSystem() const { return *mSystems->log; }
MessageSystem& Qsf::getMessageSystem() const { return *mSystems->messageSystem; }
StringHashManager& Qsf::getStringHashManager() const { return *mSystems->stringHashManager; }
JobManagers& Qsf::getJobManagers() const { return *mSystems->jobManagers; }
PluginSystem& Qsf::getPluginSystem() const { return *mSystems->pluginSystem; }
ProjectManager& Qsf::getProjectManager() const { return *mSystems->projectManager; }
PrototypeManager& Qsf::getMainPrototypeManager() const { return *mSystems->prototypeManager; }
Map& Qsf::getMainMap() const { return *mSystems->mainMap; }
InputSystem& Qsf::getInputSystem() const { return *mSystems->inputSystem; }
LocalizationSystem& Qsf::getLocalizationSystem() const { return *mSystems->localizationSystem; }
LayerManager& Qsf::getLayerManager() const { return *mSystems->layerManager; }
CallRecorder& Qsf::getCallRecorder() const { return *mSystems->callRecorder; }
FaultCounter& Qsf::getFaultCounter() const { return *mSystems->faultCounter; }

Map& getMainMap() { return Qsf::instance()->getMainMap(); }

}
