#include "qsf/Qsf.h"

#include "qsf/asset/Project.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/Random.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/base/WritePermission.h"
#include "qsf/component/BaseClasses.h"
#include "qsf/game/Plugin.h"
#include "qsf/input/InputSystem.h"
#include "qsf/job/JobManagers.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/platform/PlatformSystem.h"
#include "qsf/plugin/PluginSystem.h"
#include "qsf/prototype/PrototypeManager.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/skeleton/SkeletonManager.h"
#include "qsf/window/WindowApplication.h"

#include <cassert>
#include <tuple>

namespace qsf {

namespace {

Qsf* sInstance = nullptr;

/// Owns one object of each class. They are made in this order and ended in reverse; one that is being made or ended
/// finds those before it.
template <class... Classes> class SystemList {
public:
  void make() { ((std::get<std::unique_ptr<Classes>>(mSystems) = std::make_unique<Classes>()), ...); }
  void finish() {
    using End = void (*)(SystemList&);
    constexpr End ENDS[] = {[](SystemList& list) { std::get<std::unique_ptr<Classes>>(list.mSystems).reset(); }...};
    std::for_each(std::rbegin(ENDS), std::rend(ENDS), [this](End end) { end(*this); });
  }
  template <class Class> Class& get() const { return *std::get<std::unique_ptr<Class>>(mSystems); }

private:
  std::tuple<std::unique_ptr<Classes>...> mSystems;
};

}

/// The systems; each may use those to its left for as long as it lives. A further one is a name here, and a getter
/// below if it isn't a qsf::UniqueInstanceTarget.
struct Qsf::Systems
    : SystemList<LogSystem, FaultCounter, StringHashManager, CallRecorder, WritePermission, MessageSystem, JobManagers,
                 ProjectManager, PrototypeManager, LocalizationSystem, InputSystem, PlatformSystem, WindowApplication,
                 LayerManager, AudioSystem, SkeletonManager, game::Plugin, Map, PluginSystem> {};

Qsf::Qsf() : mSystems(std::make_unique<Systems>()) {
  assert(!sInstance);
  sInstance = this;
  Random::setSeed(0); // a host that nobody seeds is still the same every time
  mSystems->make();
  declareBaseClasses();
  ClassRegistry::declareAll(); // the string hash manager is there to remember their names
}

Qsf::~Qsf() {
  // Plug-ins go while all they use is still there; then the map, whose components' classes may be theirs.
  getMainMap().clear();
  getMainPrototypeManager().clear();
  getPluginSystem().unloadPlugins();
  mSystems->finish();
  sInstance = nullptr;
}

Qsf* Qsf::instance() { return sInstance; }

LogSystem& Qsf::getLogSystem() const { return mSystems->get<LogSystem>(); }
MessageSystem& Qsf::getMessageSystem() const { return mSystems->get<MessageSystem>(); }
StringHashManager& Qsf::getStringHashManager() const { return mSystems->get<StringHashManager>(); }
JobManagers& Qsf::getJobManagers() const { return mSystems->get<JobManagers>(); }
PluginSystem& Qsf::getPluginSystem() const { return mSystems->get<PluginSystem>(); }
ProjectManager& Qsf::getProjectManager() const { return mSystems->get<ProjectManager>(); }
PrototypeManager& Qsf::getMainPrototypeManager() const { return mSystems->get<PrototypeManager>(); }
Map& Qsf::getMainMap() const { return mSystems->get<Map>(); }
InputSystem& Qsf::getInputSystem() const { return mSystems->get<InputSystem>(); }
LocalizationSystem& Qsf::getLocalizationSystem() const { return mSystems->get<LocalizationSystem>(); }
LayerManager& Qsf::getLayerManager() const { return mSystems->get<LayerManager>(); }
CallRecorder& Qsf::getCallRecorder() const { return mSystems->get<CallRecorder>(); }
AudioSystem& Qsf::getAudioSystem() const { return mSystems->get<AudioSystem>(); }
FaultCounter& Qsf::getFaultCounter() const { return mSystems->get<FaultCounter>(); }

Map& getMainMap() { return Qsf::instance()->getMainMap(); }

}
