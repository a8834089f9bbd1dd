#include "qsf/action/ActionComponent.h"

#include "qsf/log/ErrorHandling.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <iterator>
#include <stdexcept>

namespace qsf {

void ActionPlan::insert(std::unique_ptr<Action> action, action::InsertionMode mode) {
  std::size_t place = mView.size();
  if (mode == action::INSERT_BEFORE_CURRENT)
    place = 0;
  else if (mode == action::INSERT_AT_FRONT && !mView.empty())
    place = action->getPriority() > mView.front()->getPriority() ? 0 : 1;
  mView.insert(mView.begin() + static_cast<std::ptrdiff_t>(place), action.get());
  mActions.insert(mActions.begin() + static_cast<std::ptrdiff_t>(place), std::move(action));
}

std::unique_ptr<Action> ActionPlan::remove(const Action& action) {
  // A plan is cleared from its end.
  const bool isLast = !mView.empty() && mView.back() == &action;
  const auto found = isLast ? std::prev(mView.end()) : std::find(mView.begin(), mView.end(), &action);
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
  return ClassRegistry::createObject<Action>(actionId);
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

Action& ActionComponent::pushActionById(StringHash actionId, unsigned int priority, action::InsertionMode mode) {
  std::unique_ptr<Action> action = createActionById(actionId);
  if (action) return insertAction(std::move(action), priority, mode);
  const std::string fault = "ActionComponent::PushAction() Can't create action: \"" + toText(actionId) + "\"";
  ErrorHandling::printToLog(fault, 1);
  throw std::runtime_error(fault);
}

void ActionComponent::removeAction(const Action* action) {
  std::unique_ptr<Action> removed = action ? mPlan.remove(*action) : nullptr;
  if (!removed) return;
  Action& stopped = *removed;
  stopAction(stopped);
  getEntity().getMap().keepUntilFrameEnd(std::move(removed)); // it may be running right now
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
  const bool hasWork = isRunning() && !mPlan.isEmpty();
  if (hasWork && !mJob.isRegistered())
    mJob.registerInSimulation([this](const JobArguments& arguments) { update(arguments); });
}

void ActionComponent::update(const JobArguments& arguments) {
  Action* current = getCurrentAction();
  if (!current) return mJob.unregister();
  if (!isActive()) return;
  const Clock clock(arguments.getTimePassed(), ++mUpdates);
  bool isDone = true; // so it is, too, if it throws
  callGuarded(
      [&] {
        const bool isStarted = startAction(*current);
        const bool isCurrent = getCurrentAction() == current; // its own start may have changed the plan
        isDone = !isStarted || (isCurrent && current->updateAction(clock) == action::RESULT_DONE);
      },
      [&] { return describeActions(); });
  if (isDone) removeAction(current);
}

std::string ActionComponent::describeActions() const { return "an action of entity " + std::to_string(getEntityId()); }

bool ActionComponent::startAction(Action& action) {
  if (action.mStarted) return true;
  if (!action.onStartup()) return false;
  action.mStarted = true;
  if (getCurrentAction() != &action) stopAction(action); // its own start has removed or interrupted it
  return true;
}

void ActionComponent::stopAction(Action& action) {
  if (std::exchange(action.mStarted, false))
    callGuarded([&] { action.onShutdown(); }, [&] { return describeActions(); });
}

}
