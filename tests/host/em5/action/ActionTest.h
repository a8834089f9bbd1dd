#pragma once
#include "host/qsf/TestWorld.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/message/MessageSystem.h"

namespace host_test {

/// A started world with the base project, whose prefabs act.
class ActionTest : public WorldTest {
protected:
  ActionTest() {
    mountBase();
    map.startup();
  }
  qsf::Entity& make(std::uint64_t id, const std::string& prefab, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity& entity = *map.createObjectByLocalPrefabAssetId(qsf::StringHash("em5/prefab/test/" + prefab), id);
    entity.getComponent<qsf::TransformComponent>()->setPosition(position);
    return entity;
  }
  static qsf::ActionComponent& actionsOf(qsf::Entity& entity) {
    return *entity.getOrCreateComponent<qsf::ActionComponent>();
  }
  template <class T> static T& push(qsf::Entity& entity) { return actionsOf(entity).pushAction<T>(); }
  static bool isIdle(qsf::Entity& entity) { return actionsOf(entity).getPlan().isEmpty(); }
  /// Text of a value that the current action was given; the first, if there are more.
  static std::string given(qsf::Entity& entity, const std::string& key) {
    for (const auto& [name, value] : actionsOf(entity).getCurrentAction()->describe())
      if (name == key) return value;
    return "not given";
  }
  /// Frames until the plan is empty; -1 if it isn't after the limit.
  int framesUntilIdle(qsf::Entity& entity, int limit = 2000) {
    for (int frame = 0; frame <= limit; ++frame) {
      if (isIdle(entity)) return frame;
      runSeconds(0.05);
    }
    return -1;
  }
  std::size_t emitted(qsf::StringHash message) { return host.getMessageSystem().getEmittedCount(message); }
  /// Recorded calls of an operation, each as its arguments with a blank between.
  std::vector<std::string> calls(const std::string& operation) {
    std::vector<std::string> found;
    for (const auto& call : host.getCallRecorder().getCalls()) {
      if (call.operation != operation) continue;
      std::string text;
      for (const std::string& argument : call.arguments)
        text += (text.empty() ? "" : " ") + argument;
      found.push_back(text);
    }
    return found;
  }
};

}
