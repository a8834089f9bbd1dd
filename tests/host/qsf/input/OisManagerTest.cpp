#include "qsf/input/OisManager.h"

#include "qsf/input/InputSystem.h"

#include <OISJoyStick.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

class OisManagerTest : public testing::Test {
protected:
  const OIS::JoyStickState& state() const { return gamepad.getOisJoystick()->getJoyStickState(); }

  qsf::InputSystem input;
  qsf::OisManager& gamepad = input.getOisManager();
  const qsf::InputDevice& device = input.getJoystick();
};

TEST_F(OisManagerTest, NoGamepadIsPluggedInAtFirst) {
  EXPECT_EQ(gamepad.getOisJoystick(), nullptr);
  EXPECT_TRUE(device.getButtons().empty());
  EXPECT_TRUE(device.getAxes().empty());
  EXPECT_FALSE(gamepad.setButton(0, true));
  EXPECT_FALSE(gamepad.setAxis(0, 1));
  EXPECT_FALSE(gamepad.setDirection(OIS::Pov::North));
}

TEST_F(OisManagerTest, ANewGamepadIsAtRest) {
  gamepad.plugIn({});
  ASSERT_NE(gamepad.getOisJoystick(), nullptr);
  EXPECT_EQ(gamepad.getOisJoystick()->vendor(), "Wireless Gamepad");
  EXPECT_EQ(state().mButtons, std::vector<bool>(16, false));
  EXPECT_EQ(state().mAxes.size(), 6u);
  EXPECT_EQ(state().mPOV[0].direction, 0);
  EXPECT_EQ(device.getButtons().size(), 16u);
  EXPECT_EQ(device.getAxes().size(), 6u);
  EXPECT_EQ(device.getButtons()[15]->getName(), "Button16");
  EXPECT_EQ(device.getAxes()[2]->getName(), "Z");
}

TEST_F(OisManagerTest, TheDeviceAndOisTellTheSame) {
  gamepad.plugIn({.vendor = "V", .buttons = 3, .axes = 2});
  EXPECT_TRUE(gamepad.setButton(2, true));
  EXPECT_TRUE(gamepad.setAxis(1, -0.5f));
  EXPECT_TRUE(gamepad.setDirection(OIS::Pov::SouthWest));
  EXPECT_EQ(state().mButtons, (std::vector<bool>{false, false, true}));
  EXPECT_TRUE(device.getButtons()[2]->isPressed());
  EXPECT_EQ(device.getAxes()[1]->getValue(), -0.5f);
  EXPECT_NEAR(state().mAxes[1].abs, OIS::JoyStick::MAX_AXIS * -0.5, 1);
  EXPECT_EQ(state().mPOV[0].direction, 0x1010);
  EXPECT_FALSE(gamepad.setButton(3, true));
  EXPECT_FALSE(gamepad.setAxis(2, 0));
}

TEST_F(OisManagerTest, AnAxisStaysWithinItsRange) {
  gamepad.plugIn({});
  gamepad.setAxis(0, 7);
  EXPECT_EQ(device.getAxes()[0]->getValue(), 1);
  gamepad.setAxis(0, -INFINITY);
  EXPECT_EQ(device.getAxes()[0]->getValue(), -1);
  gamepad.setAxis(0, NAN);
  EXPECT_EQ(device.getAxes()[0]->getValue(), 0);
}

TEST_F(OisManagerTest, AGamepadTakesThePlaceOfTheOneBefore) {
  gamepad.plugIn({});
  gamepad.setButton(0, true);
  gamepad.plugIn({.vendor = "Other", .buttons = 1, .axes = 8});
  EXPECT_EQ(gamepad.getOisJoystick()->vendor(), "Other");
  EXPECT_FALSE(device.getButtons()[0]->isPressed());
  EXPECT_EQ(device.getAxes()[7]->getName(), "Axis8");
  gamepad.unplug();
  EXPECT_EQ(gamepad.getOisJoystick(), nullptr);
  EXPECT_TRUE(device.getButtons().empty());
}

TEST_F(OisManagerTest, AnAbsurdGamepadIsCutShort) {
  gamepad.plugIn({.vendor = "", .buttons = 1'000'000'000, .axes = 1'000'000'000});
  EXPECT_EQ(device.getButtons().size(), qsf::OisManager::MOST_CONTROLS);
  EXPECT_EQ(state().mAxes.size(), qsf::OisManager::MOST_CONTROLS);
}

TEST_F(OisManagerTest, StateOutlivesTheFrame) {
  gamepad.plugIn({});
  gamepad.setButton(0, true);
  gamepad.setAxis(0, 0.5f);
  input.endFrame();
  EXPECT_TRUE(device.getButtons()[0]->isPressed());
  EXPECT_EQ(device.getAxes()[0]->getValue(), 0.5f);
}

}
