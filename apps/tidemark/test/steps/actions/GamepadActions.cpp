// What the player does with a gamepad, its coming and going included.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"

#include <fmt/format.h>

#include <map>

namespace tidemark::test {

namespace {

qsf::OisManager& gamepadOf(TestSession& session) { return session.host().getQsf().getInputSystem().getOisManager(); }

void requirePluggedIn(TestSession& session) {
  if (!gamepadOf(session).getOisJoystick()) throw NotThere("no gamepad is plugged in");
}

std::size_t takeControlNumber(WordCursor& words, const char* what) {
  const std::uint64_t number = words.takeId(what);
  if (number == 0) throw DirectiveError(fmt::format("{} counts from 1", what));
  return static_cast<std::size_t>(number - 1);
}

Action buttonAction(WordCursor& words, bool pressed) {
  const std::size_t index = takeControlNumber(words, "the button's number");
  return [=](TestSession& session) {
    requirePluggedIn(session);
    if (!gamepadOf(session).setButton(index, pressed))
      throw DirectiveError(fmt::format("the gamepad has no button {}", index + 1));
  };
}

Action axisAction(WordCursor& words) {
  const std::size_t index = takeControlNumber(words, "the axis' number");
  const double value = words.takeNumber("the axis' value");
  if (!(value >= -1 && value <= 1)) throw DirectiveError("the axis' value is not between -1 and 1");
  return [=](TestSession& session) {
    requirePluggedIn(session);
    if (!gamepadOf(session).setAxis(index, static_cast<float>(value)))
      throw DirectiveError(fmt::format("the gamepad has no axis {}", index + 1));
  };
}

Action directionAction(WordCursor& words) {
  // The numbers of OIS::Pov.
  static const std::map<std::string, int> DIRECTIONS = {
      {"None", 0},           {"North", 0x0001},     {"South", 0x0010},     {"East", 0x0100},     {"West", 0x1000},
      {"Northeast", 0x0101}, {"Northwest", 0x1001}, {"Southeast", 0x0110}, {"Southwest", 0x1010}};
  const std::string name = words.take("the direction");
  const auto direction = DIRECTIONS.find(name);
  if (direction == DIRECTIONS.end())
    throw DirectiveError(fmt::format(
        "'{}' is no direction; there are North South East West Northeast Northwest Southeast Southwest None", name));
  return [value = direction->second](TestSession& session) {
    requirePluggedIn(session);
    gamepadOf(session).setDirection(value);
  };
}

std::size_t takeCount(WordCursor& words, const char* what) {
  const std::uint64_t count = words.takeId(what);
  if (count > qsf::OisManager::MOST_CONTROLS)
    throw DirectiveError(fmt::format("{} is above {}", what, qsf::OisManager::MOST_CONTROLS));
  return static_cast<std::size_t>(count);
}

}

qsf::GamepadModel takeGamepadModel(WordCursor& words) {
  qsf::GamepadModel model;
  while (!words.atEnd()) {
    if (words.takeIf("vendor"))
      model.vendor = words.take("the vendor");
    else if (words.takeIf("buttons"))
      model.buttons = takeCount(words, "the number of buttons");
    else if (words.takeIf("axes"))
      model.axes = takeCount(words, "the number of axes");
    else
      throw DirectiveError(fmt::format("'{}' is none of vendor, buttons, axes", words.peek()->text));
  }
  return model;
}

std::optional<Action> readGamepadAction(WordCursor& words) {
  if (!words.takeIf("gamepad")) return std::nullopt;
  if (words.takeIf("attach"))
    return [model = takeGamepadModel(words)](TestSession& session) { gamepadOf(session).plugIn(model); };
  if (words.takeIf("detach")) {
    return [](TestSession& session) {
      requirePluggedIn(session);
      gamepadOf(session).unplug();
    };
  }
  if (words.takeIf("press")) return buttonAction(words, true);
  if (words.takeIf("release")) return buttonAction(words, false);
  if (words.takeIf("axis")) return axisAction(words);
  if (words.takeIf("pov")) return directionAction(words);
  throw DirectiveError("behind 'gamepad' stands attach, detach, press, release, axis or pov");
}

}
