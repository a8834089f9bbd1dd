// Actions of the player: keys, mouse, orders.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/input/InputSystem.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"
#include "qsf/window/WindowApplication.h"

#include <fmt/format.h>

#include <limits>

namespace tidemark::test {

namespace {

enum class ButtonState { RELEASED, PRESSED };

void setButton(const qsf::InputDevice& device, std::string_view deviceName, const std::string& name,
               ButtonState state) {
  qsf::InputButton* button = device.findButton(name);
  if (!button) throw DirectiveError(fmt::format("the {} has no button '{}'", deviceName, name));
  button->setPressed(state == ButtonState::PRESSED);
}

Action keyboardAction(WordCursor& words, ButtonState state) {
  const std::string key = words.take("the key's name");
  return [=](TestSession& session) {
    setButton(session.host().getQsf().getInputSystem().getKeyboard(), "keyboard", key, state);
  };
}

Action mouseButtonAction(WordCursor& words, ButtonState state) {
  const std::string name = words.take("Left, Right or Middle");
  return [=](TestSession& session) {
    setButton(session.host().getQsf().getInputSystem().getMouse(), "mouse", name, state);
  };
}

// Turns the camera to the place and puts the cursor on it, for the GUI and for the device.
void pointAt(TestSession& session, const glm::vec3& place) {
  const qsf::UniqueInstance<qsf::WindowApplication> application;
  qsf::RenderWindow& window = application->getRenderWindow();
  qsf::CameraComponent* camera = window.getCameraComponent();
  if (!camera) throw NotThere("the map has no camera");
  camera->lookAt(place);
  glm::vec2 cursor;
  if (!camera->project(place, window.getAspectRatio(), cursor)) throw NotThere("the camera can't see the place");
  const glm::ivec2 pixel = window.getPixel(cursor);
  session.host().getQsf().getInputSystem().getMouse().setPosition(glm::vec2(pixel));
  if (const qsf::UniqueInstance<em5::EmergencyGui> gui; gui)
    gui->getGuiContext().setNormalizedMouseCursorPosition(window.getNormalizedPosition(pixel));
}

Action pointAtEntity(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  return [reference](TestSession& session) {
    const qsf::Entity& entity = session.findEntity(session.resolve(reference));
    pointAt(session, qsf::vectorFromText(readProperty(entity, {"qsf::TransformComponent", "Position"})));
  };
}

Action pointAtPlace(WordCursor& words) {
  const double x = words.takeNumber("the x value");
  const double y = words.takeNumber("the y value");
  const double z = words.takeNumber("the z value");
  return [place = glm::vec3(x, y, z)](TestSession& session) { pointAt(session, place); };
}

Action mouseAction(WordCursor& words) {
  if (words.takeIf("press")) return mouseButtonAction(words, ButtonState::PRESSED);
  if (words.takeIf("release")) return mouseButtonAction(words, ButtonState::RELEASED);
  if (words.takeIf("wheel")) {
    const auto steps = static_cast<float>(words.takeNumber("the wheel's steps"));
    return [steps](TestSession& session) { session.host().getQsf().getInputSystem().getMouse().moveWheel(steps); };
  }
  if (words.takeIf("over")) return pointAtEntity(words);
  if (words.takeIf("at")) return pointAtPlace(words);
  throw DirectiveError("behind 'mouse' stands press, release, wheel, over or at");
}

// Puts an action of that name in front of all others. It stands for whatever the game's own action of that name would
// do.
Action pushAction(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  const std::string name = words.take("the action's name");
  std::int64_t priority = qsf::ActionComponent::DEFAULT_PRIORITY;
  if (words.takeIf("priority")) priority = words.takeInteger("the priority");
  if (priority < 0 || priority > std::numeric_limits<std::int32_t>::max())
    throw DirectiveError("the priority is out of range");
  return [=](TestSession& session) {
    qsf::Entity& entity = session.findEntity(session.resolve(reference));
    auto* actions = entity.getComponent<qsf::ActionComponent>();
    if (!actions) throw NotThere(fmt::format("entity {} has no qsf::ActionComponent", entity.getId()));
    auto action = std::make_unique<qsf::IdleAction>();
    action->init(name);
    actions->insertAction(std::move(action), static_cast<unsigned int>(priority), qsf::action::INSERT_BEFORE_CURRENT);
  };
}

}

std::optional<Action> readDeviceAction(WordCursor& words) {
  if (words.takeIf("press")) return keyboardAction(words, ButtonState::PRESSED);
  if (words.takeIf("release")) return keyboardAction(words, ButtonState::RELEASED);
  if (words.takeIf("mouse")) return mouseAction(words);
  if (words.takeIf("push")) return pushAction(words);
  return std::nullopt;
}

}
