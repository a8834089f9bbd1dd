#include "em5/spawn/SpawnPoolManager.h"

#include "em5/component/SpawnPointComponent.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/TransformComponent.h"

#include <set>

namespace {

using SpawnPoolManagerTest = SessionTest;

TEST_F(SpawnPoolManagerTest, DrawsOneOfThePoolsPrefabs) {
  const std::string project = writeProject("mine");
  write("mine", "em5_spawnpool/test/two.json", "{\"prefabs\": [\"a/prefab/b/c\", \"a/prefab/b/d\"]}");
  write("mine", "em5_spawnpool/test/empty.json", "{\"prefabs\": []}");
  write("mine", "em5_spawnpool/test/bad.json", "{\"prefabs\": [1]}");
  open().mountMod(project);
  std::set<std::string> drawn;
  for (int i = 0; i < 50; ++i)
    drawn.insert(em5::SpawnPoolManager::getRandomNameFromSpawnPool("mine/em5_spawnpool/test/two"));
  EXPECT_EQ(drawn, (std::set<std::string>{"a/prefab/b/c", "a/prefab/b/d"}));
  EXPECT_EQ(em5::SpawnPoolManager::getRandomNameFromSpawnPool("mine/em5_spawnpool/test/empty"), "");
  EXPECT_EQ(em5::SpawnPoolManager::getRandomNameFromSpawnPool("mine/em5_spawnpool/test/none"), "");
  EXPECT_EQ(em5::SpawnPoolManager::getRandomNameFromSpawnPool("mine/em5_spawnpool/test/bad"), "");
  EXPECT_TRUE(logged(qsf::LogSystem::ERROR, "/prefabs/0"));
}

TEST_F(SpawnPoolManagerTest, PutsWhatItDrawsIntoItsPlace) {
  play();
  const glm::quat turned(0.6f, 0, 0.8f, 0);
  const qsf::Entity* person = em5::SpawnPointComponent::spawnRandomAt(
      qsf::getMainMap(), em5::assets::SPAWNPOOL_DEFAULT_PERSON, {1, 2, 3}, turned);
  ASSERT_NE(person, nullptr);
  EXPECT_EQ(person->getComponent<qsf::TransformComponent>()->getPosition(), glm::vec3(1, 2, 3));
  EXPECT_NEAR(person->getComponent<qsf::TransformComponent>()->getRotation().y, 0.8f, 1e-5f);
  EXPECT_EQ(em5::SpawnPointComponent::spawnRandomAt(qsf::getMainMap(), "mine/em5_spawnpool/test/none", {}, turned),
            nullptr);
}

}
