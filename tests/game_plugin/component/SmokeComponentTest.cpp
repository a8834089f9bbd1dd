// What script tests can't bring about: a layer that rests.
#include "game_plugin/component/SmokeComponent.h"

#include "game_plugin/ModuleFixture.h"

#include "em5/base/Jobs.h"
#include "em5/component/HealthComponent.h"
#include "qsf/job/JobManagers.h"
#include "qsf/map/LayerManager.h"

namespace {

class SmokeComponentTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    load();
    session->setMapPreparation([](qsf::Map& map) {
      map.createObjectByLocalPrefabAssetId("em5/prefab/test/civilian", 100);
      map.createObjectByLocalPrefabAssetId("em5/prefab/test/house", 120)
          ->getOrCreateComponent<script::SmokeComponent>();
    });
    session->startGame("em5/map/test/layers");
  }
  static float health() {
    return qsf::getMainMap().getEntityById(100)->getComponent<em5::HealthComponent>()->getHealthEnergy();
  }
};

TEST_F(SmokeComponentTest, RestsWithItsLayerAndGoesOnWithIt) {
  run(0.5);
  EXPECT_EQ(health(), 90);
  qsf::LayerManager& layers = session->getQsf().getLayerManager();
  qsf::Layer& day = *layers.getLayerByName("Day");
  qsf::getMainMap().getEntityById(120)->setLayerId(day.getId());
  layers.deactivateLayer(day);
  run(0.5);
  EXPECT_EQ(health(), 90);
  layers.activateLayer(day);
  run(0.5);
  EXPECT_EQ(health(), 80);
}

TEST_F(SmokeComponentTest, NoJobIsLeftBehindTheGame) {
  run(0.5);
  session->endGame();
  EXPECT_EQ(session->getQsf().getJobManagers().getNumberOfJobs(em5::Jobs::SIMULATION_FIRE), 0u);
}

}
