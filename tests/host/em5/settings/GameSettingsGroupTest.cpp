#include "em5/settings/GameSettingsGroup.h"

#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"

namespace {

using GameSettingsGroupTest = SessionTest;

TEST_F(GameSettingsGroupTest, EachBlockIsItsOwnAndIsRecorded) {
  em5::HostSession& session = open();
  em5::GameSettingsGroup& settings = *qsf::UniqueInstance<em5::GameSettingsGroup>();
  const auto state = [&] {
    return std::vector<bool>{settings.isInputBlocked(), settings.isInputCameraMoveBlocked(),
                             settings.isInputCameraRotateBlocked(), settings.isInputCameraZoomBlocked()};
  };
  using Setter = void (em5::GameSettingsGroup::*)(bool);
  const Setter setters[] = {
      &em5::GameSettingsGroup::setInputBlocked, &em5::GameSettingsGroup::setInputCameraMoveBlocked,
      &em5::GameSettingsGroup::setInputCameraRotateBlocked, &em5::GameSettingsGroup::setInputCameraZoomBlocked};
  const char* names[] = {"setInputBlocked", "setInputCameraMoveBlocked", "setInputCameraRotateBlocked",
                         "setInputCameraZoomBlocked"};
  const auto& calls = session.getQsf().getCallRecorder().getCalls();
  for (std::size_t i = 0; i < std::size(setters); ++i) {
    std::vector<bool> expected(4, false);
    EXPECT_EQ(state(), expected);
    (settings.*setters[i])(true);
    expected[i] = true;
    EXPECT_EQ(state(), expected);
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back().operation, std::string("em5::GameSettingsGroup::") + names[i]);
    EXPECT_EQ(calls.back().arguments, std::vector<std::string>{"1"});
    (settings.*setters[i])(false);
    EXPECT_EQ(calls.back().arguments, std::vector<std::string>{"0"});
  }
}

}
