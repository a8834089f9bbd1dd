#include "qsf/action/ActionComponent.h"

#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

void ActionPlan::insert(std::unique_ptr<Action> action, action::InsertionMode mode) {
  const unsigned int priority = action->getPriority();
  std::size_t place = 0;
  if (mode == action::INSERT_AT_FRONT)
    place = !mView.empty() && mView.front()->getPriority() >= priority ? 1 : 0;
  else if (mode != action::INSERT_BEFORE_CURRENT)
    while (place < mView.size() && mView[place]->getPriority() >= priority)
      ++place;
  mView.insert(mView.begin() + static_cast<std::ptrdiff_t>(place), action.get());
  mActions.insert(mActions.begin() + static_cast<std::ptrdiff_t>(place), std::move(action));
}

std::unique_ptr<Action> ActionPlan::remove(const Action& action) {
  const auto found = std::find(mView.begin(), mView.end(), &action);
  if (found == mView.end()) return nullptr;
  const auto place = found - mView.begin();
  std::unique_ptr<Action> removed = std::move(mActions[static_cast<std::size_t>(place)]);
  mActions.erase(mActions.begin() + place);
  mView.erase(found);
  return removed;
}

ActionComponent::ActionComponent(Prototype* prototype) : Component(prototype) {}

ActionComponent::~ActionComponent() = default;

static const DeclaredClass<ActionComponent> declared;

void ActionComponent::declareCamp() {
  camp::Class::declare<ActionComponent>("qsf::ActionComponent").base<Component>().constructor1<Prototype*>();
}

unsigned int ActionComponent::getCurrentPriority() const {
  const Action* current = getCurrentAction();
  return current ? current->getPriority() : 0;
}

std::unique_ptr<Action> ActionComponent::createActionById(StringHash actionId) const {
  const camp::Class* metaclass = ClassRegistry::findClass(actionId);
  if (!metaclass) return nullptr;
  try {
    const camp::UserObject made = metaclass->construct();
    return std::unique_ptr<Action>(made.pointer() ? made.get<Action*>() : nullptr);
  } catch (const std::exception& fault) {
    logMessage(LogSystem::ERROR, "An action " + metaclass->name() + " could not be made: " + fault.what());
    return nullptr;
  }
}

Action& ActionComponent::insertAction(std::unique_ptr<Action> action, unsigned int priority,
                                      action::InsertionMode mode) {
  Action& inserted = *action;
  inserted.mComponent = this;
  inserted.mPriority = priority;
  if (mode == action::REPLACE_WHOLE_PLAN) clearPlan();
  Action* const before = getCurrentAction();
  mPlan.insert(std::move(action), mode);
  if (before && before != getCurrentAction()) stopAction(*before);
  updateRegistration();
  return inserted;
}

Action* ActionComponent::pushActionById(StringHash actionId, unsigned int priority, action::InsertionMode mode) {
  std::unique_ptr<Action> action = createActionById(actionId);
  return action ? &insertAction(std::move(action), priority, mode) : nullptr;
}

void ActionComponent::removeAction(const Action* action) {
  std::unique_ptr<Action> removed = action ? mPlan.remove(*action) : nullptr;
  if (!removed) return;
  Action& stopped = *removed;
  mRetired.push_back(std::move(removed));
  stopAction(stopped);
  updateRegistration();
}

void ActionComponent::clearPlan() {
  while (!mPlan.isEmpty())
    removeAction(mPlan.getActions().back());
}

bool ActionComponent::onStartup() {
  updateRegistration();
  return true;
}

void ActionComponent::onShutdown() {
  mJob.unregister();
  if (Action* current = getCurrentAction()) stopAction(*current);
}

void ActionComponent::updateRegistration() {
  // Retired actions are released by the job, too.
  const bool hasWork = isRunning() && (!mPlan.isEmpty() || !mRetired.empty());
  if (hasWork && !mJob.isRegistered())
    mJob.registerInSimulation([this](const JobArguments& arguments) { update(arguments); });
}

void ActionComponent::update(const JobArguments& arguments) {
  mRetired.clear();
  Action* current = getCurrentAction();
  if (!current) return mJob.unregister();
  if (!isActive()) return;
  const Clock clock(arguments.getTimePassed(), ++mUpdates);
  bool isDone = true;
  callGuarded([&] { isDone = !startAction(*current) || current->updateAction(clock) == action::RESULT_DONE; },
              [&] { return describeCurrent(); });
  if (isDone) removeAction(current);
}

std::string ActionComponent::describeCurrent() const { return "an action of entity " + std::to_string(getEntityId()); }

bool ActionComponent::startAction(Action& action) {
  if (!action.mStarted) action.mStarted = action.onStartup();
  return action.mStarted;
}

void ActionComponent::stopAction(Action& action) {
  if (std::exchange(action.mStarted, false)) action.onShutdown();
}

}
