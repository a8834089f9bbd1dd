#include "qsf/input/InputSystem.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using qsf::InputSystem;

TEST(InputSystem, KeysAreFoundByNameAndDescription) {
  InputSystem input;
  for (const char* key : {"A", "Z", "F1", "F15", "Numpad0", "Numpad8", "Plus", "Minus", "LeftShift", "RightShift",
                          "LeftCtrl", "Return", "Escape", "Space", "Tab", "Up", "Down", "Left", "Right"}) {
    const qsf::InputButton* button = input.getKeyboard().findButton(key);
    ASSERT_NE(button, nullptr) << key;
    EXPECT_EQ(button->getName(), key);
    EXPECT_EQ(button->getDescription(), key);
  }
  EXPECT_EQ(input.getKeyboard().findButton("a"), nullptr);
  EXPECT_EQ(input.getKeyboard().findButton(""), nullptr);
}

TEST(InputSystem, ADigitsDescriptionHasABlankInFront) {
  InputSystem input;
  const qsf::InputButton* button = input.getKeyboard().findButton(" 8");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->getName(), "8");
  EXPECT_EQ(button->getDescription(), " 8");
  EXPECT_EQ(input.getKeyboard().findButton("8"), button);
}

TEST(InputSystem, NamesAndDescriptionsAreUniqueWithinADevice) {
  InputSystem input;
  for (const qsf::InputDevice* device : {static_cast<const qsf::InputDevice*>(&input.getKeyboard()),
                                         static_cast<const qsf::InputDevice*>(&input.getMouse())}) {
    std::set<std::string> names;
    std::set<std::string> descriptions;
    for (const qsf::InputButton* button : device->getButtons()) {
      EXPECT_TRUE(names.insert(button->getName()).second) << button->getName();
      EXPECT_TRUE(descriptions.insert(button->getDescription()).second) << button->getDescription();
    }
  }
}

TEST(InputSystem, MouseButtonsStandInTheirOrder) {
  InputSystem input;
  const auto& buttons = input.getMouse().getButtons();
  ASSERT_EQ(buttons.size(), 3u);
  EXPECT_EQ(buttons[0]->getDescription(), "Left");
  EXPECT_EQ(buttons[1]->getDescription(), "Right");
  EXPECT_EQ(buttons[2]->getDescription(), "Middle");
}

TEST(InputSystem, ButtonsStayDownUntilReleased) {
  InputSystem input;
  qsf::InputButton* button = input.getKeyboard().findButton("B");
  EXPECT_FALSE(button->isPressed());
  button->setPressed(true);
  input.endFrame();
  EXPECT_TRUE(button->isPressed());
  button->setPressed(false);
  EXPECT_FALSE(button->isPressed());
}

TEST(InputSystem, WheelMovementsHoldForOneFrame) {
  InputSystem input;
  input.getMouse().moveWheel(2);
  input.getMouse().moveWheel(-0.5f);
  EXPECT_EQ(input.getMouse().getWheel().getValue(), 1.5f);
  ASSERT_EQ(input.getMouse().getAxes().size(), 3u);
  EXPECT_EQ(input.getMouse().getAxes()[2], &input.getMouse().getWheel());
  input.endFrame();
  EXPECT_EQ(input.getMouse().getWheel().getValue(), 0.0f);
}

TEST(InputSystem, TheMousesPositionStaysAndItsMovementShowsForOneFrame) {
  InputSystem input;
  input.getMouse().setPosition({10, 20});
  input.getMouse().setPosition({15, 18});
  EXPECT_EQ(input.getMouse().getAxes()[0]->getValue(), 15.0f);
  EXPECT_EQ(input.getMouse().getAxes()[1]->getValue(), 18.0f);
  input.endFrame();
  EXPECT_EQ(input.getMouse().getPosition(), glm::vec2(15, 18));
  EXPECT_EQ(input.getMouse().getAxes()[0]->getValue(), 0.0f);
}

}
