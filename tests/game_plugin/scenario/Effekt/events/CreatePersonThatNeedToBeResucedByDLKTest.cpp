// Where a script test can't bring the game: a person whose prefab lets it walk about.
#include "game_plugin/ModuleFixture.h"

#include "em5/component/MoveToDespawnComponent.h"
#include "em5/component/PersonComponent.h"
#include "qsf/ai/NavigationComponent.h"
#include "qsf/component/TransformComponent.h"

namespace {

using CreatePersonThatNeedToBeResucedByDLKTest = ModuleTest;

TEST_F(CreatePersonThatNeedToBeResucedByDLKTest, ThePersonWalksNowhereByItself) {
  addScript("rescue", "MAP_STARTUP",
            "InitNewTrigger(\"Start\", true, false);\nInitConditions();\nInitEffects();\n"
            "StartScriptedEvent(\"1\", \"Fire\");\n"
            "CreatePersonThatNeedToBeResucedByDLK(\"100\", \"1\");\n");
  start();
  qsf::Map& map = qsf::getMainMap();
  map.createEntity(100)->getOrCreateComponent<qsf::TransformComponent>()->setPosition({10, 0, 0});
  qsf::Entity* person = nullptr;
  map.setSpawnListener([&](qsf::Entity& spawned) {
    if (!spawned.getComponent<em5::PersonComponent>()) return;
    person = &spawned;
    spawned.getOrCreateComponent<qsf::ai::NavigationComponent>();
    spawned.getOrCreateComponent<em5::MoveToDespawnComponent>()->setTargetPosition({50, 0, 0});
  });
  run(2);
  ASSERT_NE(person, nullptr);
  EXPECT_FALSE(person->getComponent<qsf::ai::NavigationComponent>()->isActive());
  EXPECT_FALSE(person->getComponent<em5::MoveToDespawnComponent>()->isActive());
  EXPECT_EQ(person->getComponent<qsf::TransformComponent>()->getPosition(), glm::vec3(10, 0, 0));
  map.setSpawnListener({});
}

}
