#include "em5/component/StatusOverlayComponent.h"
#include "host/qsf/TestWorld.h"

using em5::StatusOverlayComponent;

namespace {

class StatusOverlayComponentTest : public host_test::WorldTest {
protected:
  StatusOverlayComponentTest() { mountBase(); }
  qsf::Entity& entity = makeEntity(100);
};

TEST_F(StatusOverlayComponentTest, AnIconShowsUntilItIsHidden) {
  StatusOverlayComponent::showIcon(entity, em5::STATUS_ICON_BOMB, true);
  StatusOverlayComponent::showIcon(entity, em5::STATUS_ICON_WRENCH, true);
  const auto* overlay = entity.getComponent<StatusOverlayComponent>();
  ASSERT_NE(nullptr, overlay);
  EXPECT_TRUE(overlay->isIconVisible(2));
  EXPECT_TRUE(overlay->isIconVisible(33));
  StatusOverlayComponent::showIcon(entity, em5::STATUS_ICON_BOMB, false);
  EXPECT_EQ(std::set<int>{33}, overlay->getVisibleIcons());
}

TEST_F(StatusOverlayComponentTest, ABarShowsItsProgressUntilItIsHidden) {
  StatusOverlayComponent::showBarOverlay(entity, em5::BAR_TYPE_PROGRESS, 0.25f);
  StatusOverlayComponent::showBarOverlay(entity, em5::BAR_TYPE_PROGRESS, 0.5f);
  const auto* overlay = entity.getComponent<StatusOverlayComponent>();
  ASSERT_NE(nullptr, overlay);
  EXPECT_EQ(0.5f, overlay->getBarProgress(5));
  EXPECT_EQ(std::nullopt, overlay->getBarProgress(em5::BAR_TYPE_FIRE));
  StatusOverlayComponent::hideBarOverlay(entity, em5::BAR_TYPE_PROGRESS);
  EXPECT_TRUE(overlay->getVisibleBars().empty());
}

TEST_F(StatusOverlayComponentTest, NumbersBeyondTheEnumerationsShowNothing) {
  for (const int icon : {-1, static_cast<int>(em5::STATUS_ICON_COUNT), 1000})
    StatusOverlayComponent::showIcon(entity, icon, true);
  for (const int bar : {-1, static_cast<int>(em5::BAR_COUNT), 1000})
    StatusOverlayComponent::showBarOverlay(entity, bar, 1);
  EXPECT_EQ(nullptr, entity.getComponent<StatusOverlayComponent>());
}

TEST_F(StatusOverlayComponentTest, HidingWhatNeverShowedMakesNoComponent) {
  StatusOverlayComponent::hideBarOverlay(entity, em5::BAR_TYPE_PROGRESS);
  StatusOverlayComponent::showIcon(entity, em5::STATUS_ICON_TREE, false);
  EXPECT_EQ(nullptr, entity.getComponent<StatusOverlayComponent>());
}

}
