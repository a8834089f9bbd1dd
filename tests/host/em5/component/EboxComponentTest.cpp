#include "em5/component/EboxComponent.h"

#include "em5/component/FireComponent.h"
#include "host/em5/SessionFixture.h"

namespace {

using EboxComponentTest = SessionTest;

TEST_F(EboxComponentTest, ARepairTakesItsParticlesAway) {
  play();
  qsf::Entity& entity = *qsf::getMainMap().createEntity(100);
  auto* ebox = entity.getOrCreateComponent<em5::EboxComponent>();
  EXPECT_FALSE(ebox->isDefect());
  qsf::getMainMap().createEntity(101);
  ebox->setEboxDefectiveWithGaping(0.5f, 20);
  ebox->setLightningEntity(101);
  ebox->setSparksEntity(555);
  EXPECT_TRUE(ebox->isDefect());
  EXPECT_EQ(ebox->getPropertyAsString("GapeChance"), "0.5");
  EXPECT_EQ(ebox->getPropertyAsString("GapeRadius"), "20");
  ebox->setPropertyByString("Defect", "0");
  EXPECT_FALSE(ebox->isDefect());
  EXPECT_EQ(ebox->getGapeChance(), 0);
  EXPECT_EQ(ebox->getGapeRadius(), 0);
  EXPECT_EQ(ebox->getLightningEntity(), qsf::UNINITIALIZED_ID);
  EXPECT_EQ(qsf::getMainMap().getEntityById(101), nullptr);
}

TEST_F(EboxComponentTest, BurnsWithItsEntity) {
  play();
  qsf::Entity& entity = *qsf::getMainMap().createEntity(100);
  auto* ebox = entity.getOrCreateComponent<em5::EboxComponent>();
  EXPECT_FALSE(ebox->isBurning());
  entity.getOrCreateComponent<em5::FireComponent>()->startFire();
  EXPECT_TRUE(ebox->isBurning());
}

}
