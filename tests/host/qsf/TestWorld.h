#pragma once
#include "em5/base/GameLayer.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/LoadError.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/job/JobManagers.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace host_test {

/// A project folder of its own for one test, gone when the test ends.
class TestProject {
public:
  explicit TestProject(const std::string& projectJson = R"({"name": "test"})") {
    static int number = 0;
    mFolder = std::filesystem::temp_directory_path() /
              ("tidemark_host_test_" + std::to_string(getpid()) + "_" + std::to_string(++number));
    write("project.json", projectJson);
  }
  ~TestProject() { std::filesystem::remove_all(mFolder); }
  TestProject(const TestProject&) = delete;
  TestProject& operator=(const TestProject&) = delete;

  void write(const std::string& path, const std::string& text) const {
    std::filesystem::create_directories((mFolder / path).parent_path());
    std::ofstream(mFolder / path, std::ios::binary) << text;
  }
  std::string path() const { return mFolder.string(); }

private:
  std::filesystem::path mFolder;
};

/// The base project's prefabs that the host loads by itself. The others need components of the module.
inline std::vector<std::string> findPrefabsOfTheHost(const qsf::ProjectManager& projects) {
  std::vector<std::string> names = projects.getAssetNamesByType("prefab");
  std::erase(names, "em5/prefab/test/open_house");
  return names;
}

/// A host with an empty main map; what it logs is kept.
class WorldTest : public testing::Test {
protected:
  WorldTest() {
    em5::addGameLayer(host);
    host.getLogSystem().setThreshold(0);
    host.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) { log.emplace_back(record.message); });
  }

  void mountProject() { host.getProjectManager().registerSingleProjectFromFileSystem(project.path()); }
  void mountBase() { host.getProjectManager().registerSingleProjectFromFileSystem(paths::baseProject()); }
  /// The text of the error that loading a map of this content ends with; empty if it loads.
  std::string loadFault(const std::string& json) {
    project.write("map/test/map.json", json);
    if (!host.getProjectManager().getProjectByName("test")) mountProject();
    try {
      map.load("test/map/test/map");
      return {};
    } catch (const qsf::LoadError& fault) {
      return fault.what();
    }
  }
  qsf::Entity& makeEntity(std::uint64_t id, const glm::vec3& position = {0, 0, 0}) {
    qsf::Entity& entity = *map.createEntity(id);
    entity.getOrCreateComponent<qsf::TransformComponent>()->setPosition(position);
    entity.getOrCreateComponent<qsf::MetadataComponent>();
    return entity;
  }
  void runSeconds(double seconds, double tick = 0.05) {
    for (int frames = static_cast<int>(seconds / tick + 0.5); frames > 0; --frames) {
      host.getJobManagers().runFrame(qsf::Time::fromSeconds(tick));
      map.collectGarbage();
    }
  }
  static glm::vec3 positionOf(const qsf::Entity& entity) {
    return entity.getComponent<qsf::TransformComponent>()->getPosition();
  }

  TestProject project;
  std::vector<std::string> log; // outlives the host, which logs to its end
  qsf::Qsf host;
  qsf::Map& map = host.getMainMap();
};

template <class T> std::vector<std::uint64_t> idsOf(const std::vector<T*>& parts) {
  std::vector<std::uint64_t> ids;
  for (const T* part : parts) {
    if constexpr (std::is_base_of_v<qsf::Component, T>)
      ids.push_back(part->getEntityId());
    else
      ids.push_back(part->getId());
  }
  return ids;
}

using Ids = std::vector<std::uint64_t>;

}
