#include "em5/gui/SEKDroneScanWindow.h"

#include "em5/gui/EmergencyGui.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"

namespace {

using SEKDroneScanWindowTest = SessionTest;

TEST_F(SEKDroneScanWindowTest, HasAPictureWhileItHasACamera) {
  play();
  em5::SEKDroneScanWindow& window = *qsf::UniqueInstance<em5::EmergencyGui>()->getIngameHud()->getSEKDroneScanWindow();
  EXPECT_EQ(window.getHeatRenderer().getHeatTexture(), nullptr);
  EXPECT_EQ(window.getObservedEntityId(), qsf::UNINITIALIZED_ID);
  window.setCameraDrone(*qsf::getMainMap().createEntity(100));
  window.show();
  EXPECT_NE(window.getHeatRenderer().getHeatTexture(), nullptr);
  EXPECT_EQ(window.getObservedEntityId(), 100u);
  EXPECT_EQ(session->getQsf().getCallRecorder().getCalls().back().arguments, std::vector<std::string>{"100"});
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(window.getHeatRenderer().getHeatTexture(), nullptr);
  EXPECT_EQ(window.getObservedEntityId(), qsf::UNINITIALIZED_ID);
  EXPECT_FALSE(window.isVisible());
}

}
