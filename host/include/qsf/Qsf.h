#pragma once
#include "qsf/Export.h"

#include <memory>

namespace qsf {

class LogSystem;
class MessageSystem;
class StringHashManager;
class JobManagers;
class PluginSystem;
class ProjectManager;
class PrototypeManager;
class Map;
class InputSystem;
class LocalizationSystem;
class LayerManager;
class CallRecorder;
class FaultCounter;
class AudioSystem;

/// The root of the runtime: owns the systems and hands them out. One lives at a time; the program that hosts the game
/// makes and destroys it. Systems are made in the constructor and live as long as it does.
class QSF_API Qsf {
public:
  Qsf();
  ~Qsf();
  Qsf(const Qsf&) = delete;
  Qsf& operator=(const Qsf&) = delete;

  /// Null before the host has started and after it has ended.
  static Qsf* instance();

  LogSystem& getLogSystem() const;
  MessageSystem& getMessageSystem() const;
  StringHashManager& getStringHashManager() const;
  JobManagers& getJobManagers() const;
  PluginSystem& getPluginSystem() const;
  ProjectManager& getProjectManager() const;
  PrototypeManager& getMainPrototypeManager() const;
  /// The map that is played or edited. Always there; empty between games.
  Map& getMainMap() const;
  InputSystem& getInputSystem() const;
  LocalizationSystem& getLocalizationSystem() const;
  LayerManager& getLayerManager() const;
  AudioSystem& getAudioSystem() const;
  /// Operations that leave no trace in a component are noted here, for tests and tools.
  CallRecorder& getCallRecorder() const;
  /// Faults that were caught in callbacks since the host's start.
  FaultCounter& getFaultCounter() const;

private:
  struct Systems;
  std::unique_ptr<Systems> mSystems;
};

/// Shorthand for `Qsf::instance()->getMainMap()`.
QSF_API Map& getMainMap();

}
