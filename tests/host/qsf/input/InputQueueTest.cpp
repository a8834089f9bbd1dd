#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/input/InputSystem.h"
#include "qsf/log/FaultCounter.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace {

/// Notes what it hears as "name:A+", and does whatever else it is told.
class Ear : public qsf::InputListener {
public:
  Ear(
      qsf::InputSystem& input, std::string name, std::string& heard, std::function<void()> also = [] {})
      : InputListener(input), mName(std::move(name)), mHeard(heard), mAlso(std::move(also)) {}
  void onKeyboardEvent(const qsf::KeyboardEvent& event) override {
    mHeard += mName + ":" + event.getButton().getName() + (event.isPressed() ? "+" : "-") + " ";
    mAlso();
  }

private:
  std::string mName;
  std::string& mHeard;
  std::function<void()> mAlso;
};

class InputQueueTest : public SessionTest {
protected:
  InputQueueTest() : input(open().getQsf().getInputSystem()) {}
  void queue(const char* key, bool pressed) {
    input.addEventToInputQueue(std::make_unique<qsf::KeyboardEvent>(*input.getKeyboard().findButton(key), pressed));
  }

  long told(const std::string& text) const {
    return std::count(log.begin(), log.end(), std::pair<int, std::string>(4, text));
  }

  qsf::InputSystem& input;
  std::string heard;
};

TEST_F(InputQueueTest, EventsComeInTheirOrderToEachListener) {
  const Ear first(input, "1", heard);
  const Ear second(input, "2", heard);
  queue("A", true);
  queue("A", false);
  EXPECT_EQ(heard, "") << "nothing before the next frame";
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 2:A+ 1:A- 2:A- ");
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 2:A+ 1:A- 2:A- ") << "an event comes once";
  EXPECT_FALSE(input.getKeyboard().findButton("A")->isPressed()) << "the device stays as it is";
}

TEST_F(InputQueueTest, WhatListenersQueueComesWithTheNextFrame) {
  const Ear echo(input, "1", heard, [&] { queue("B", true); });
  queue("A", true);
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ ");
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 1:B+ ");
}

TEST_F(InputQueueTest, AListenerMayGoAndComeWhileItIsTold) {
  std::unique_ptr<Ear> second;
  std::unique_ptr<Ear> third;
  auto first = std::make_unique<Ear>(input, "1", heard, [&] {
    second.reset();
    third = std::make_unique<Ear>(input, "3", heard);
  });
  second = std::make_unique<Ear>(input, "2", heard);
  queue("A", true);
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 3:A+ ");
  first.reset();
  queue("B", true);
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 3:A+ 3:B+ ");
}

TEST_F(InputQueueTest, AListenerMayEndItself) {
  std::unique_ptr<Ear> ear;
  ear = std::make_unique<Ear>(input, "1", heard, [&] { ear.reset(); });
  const Ear other(input, "2", heard);
  queue("A", true);
  queue("B", true);
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 2:A+ 2:B+ ");
}

TEST_F(InputQueueTest, WhatAListenerThrowsCostsThisCallOnly) {
  const Ear faulty(input, "1", heard, [] { throw std::runtime_error("deaf"); });
  const Ear other(input, "2", heard);
  queue("A", true);
  input.deliverEvents();
  EXPECT_EQ(heard, "1:A+ 2:A+ ");
  EXPECT_EQ(qsf::Qsf::instance()->getFaultCounter().getCount(), 1u);
}

TEST_F(InputQueueTest, EachEventIsRecorded) {
  queue("8", true);
  queue("Escape", false);
  const auto& calls = qsf::Qsf::instance()->getCallRecorder().getCalls();
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].operation, "qsf::InputSystem::addEventToInputQueue");
  EXPECT_EQ(calls[0].arguments, (std::vector<std::string>{"8", "1"}));
  EXPECT_EQ(calls[1].arguments, (std::vector<std::string>{"Escape", "0"}));
}

TEST_F(InputQueueTest, AFloodIsCutAndToldOnceAFrame) {
  const Ear ear(input, "1", heard);
  for (std::size_t i = 0; i < qsf::InputSystem::MOST_EVENTS + 10; ++i)
    queue("A", true);
  const std::string text = "The input queue holds 1000 events; what comes further in this frame is dropped";
  EXPECT_EQ(told(text), 1);
  input.deliverEvents();
  EXPECT_EQ(heard.size(), qsf::InputSystem::MOST_EVENTS * 5);
  for (std::size_t i = 0; i < qsf::InputSystem::MOST_EVENTS + 10; ++i)
    queue("A", true);
  EXPECT_EQ(told(text), 2);
}

}
