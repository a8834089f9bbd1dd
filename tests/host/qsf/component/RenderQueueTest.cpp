#include "host/qsf/TestWorld.h"
#include "qsf/component/ParticlesComponent.h"
#include "qsf/component/RendererComponent.h"

namespace {

class RenderQueueTest : public host_test::WorldTest {
protected:
  RenderQueueTest() { mountBase(); }
  qsf::Entity& entity = makeEntity(100);
};

TEST_F(RenderQueueTest, ARendererKeepsItsQueueWithinTheQueuesThatThereAre) {
  auto* renderer = entity.getOrCreateComponent<qsf::RendererComponent>();
  EXPECT_EQ("50", renderer->getPropertyAsString("RenderQueueId"));
  renderer->setPropertyByString("RenderQueueId", "200");
  EXPECT_EQ(105, renderer->getRenderQueueId());
  renderer->setRenderQueueId(-3);
  EXPECT_EQ(0, renderer->getRenderQueueId());
}

TEST_F(RenderQueueTest, ParticlesKeepTheirGroupWithinTheQueuesThatThereAre) {
  auto* particles = entity.getOrCreateComponent<qsf::ParticlesComponent>();
  EXPECT_EQ("50", particles->getPropertyAsString("RenderQueueGroup"));
  particles->setPropertyByString("RenderQueueGroup", "200");
  EXPECT_EQ(105, particles->getRenderQueueGroup());
  particles->setRenderQueueGroup(-3);
  EXPECT_EQ(0, particles->getRenderQueueGroup());
}

TEST_F(RenderQueueTest, ParticlesHaveSomethingToDrawWhileTheyRun) {
  auto* particles = entity.getOrCreateComponent<qsf::ParticlesComponent>();
  EXPECT_EQ(nullptr, particles->getOgreMovableObject());
  map.startup();
  EXPECT_NE(nullptr, particles->getOgreMovableObject());
  particles->shutdown();
  EXPECT_EQ(nullptr, particles->getOgreMovableObject());
}

}
