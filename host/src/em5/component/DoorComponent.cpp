#include "em5/component/DoorComponent.h"

#include "em5/base/Jobs.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>

namespace em5 {

static const qsf::DeclaredClass<DoorComponent> declared;

void DoorComponent::declareCamp() {
  camp::Enum::declare<DoorState>("em5::DoorComponent::DoorState")
      .value("DOOR_CLOSED", DOOR_CLOSED)
      .value("DOOR_CLOSING", DOOR_CLOSING)
      .value("DOOR_OPEN", DOOR_OPEN)
      .value("DOOR_OPENING", DOOR_OPENING);
  camp::Class::declare<DoorComponent>("em5::DoorComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("DoorState", &DoorComponent::getDoorState, &DoorComponent::setDoorState)
      .property("OpeningTime", &DoorComponent::getOpeningTime, &DoorComponent::setOpeningTime)
      .property("Sound", &DoorComponent::getSound, &DoorComponent::setSound);
}

void DoorComponent::setDoorState(DoorState state) {
  if (state < DOOR_CLOSED || state > DOOR_OPENING || state == mDoorState) return;
  mDoorState = state;
  mRemaining = mOpeningTime;
  playSound();
  updateJob();
}

void DoorComponent::openDoor() {
  if (mDoorState == DOOR_OPEN || mDoorState == DOOR_OPENING) return;
  const qsf::Time way = mDoorState == DOOR_CLOSING ? mOpeningTime - mRemaining : mOpeningTime;
  setDoorState(DOOR_OPENING);
  mRemaining = way;
}

void DoorComponent::closeDoor() {
  if (mDoorState == DOOR_CLOSED || mDoorState == DOOR_CLOSING) return;
  const qsf::Time way = mDoorState == DOOR_OPENING ? mOpeningTime - mRemaining : mOpeningTime;
  setDoorState(DOOR_CLOSING);
  mRemaining = way;
}

void DoorComponent::setOpeningTime(float seconds) {
  mOpeningTime = std::max(qsf::Time::fromSeconds(static_cast<double>(seconds)), qsf::Time());
}

bool DoorComponent::onStartup() {
  updateJob();
  return true;
}

void DoorComponent::onShutdown() {
  mMoveJobProxy.unregister();
  if (mAudioProxy.isPlaying()) mAudioProxy.stop();
}

void DoorComponent::playSound() {
  const bool moves = mDoorState == DOOR_OPENING || mDoorState == DOOR_CLOSING;
  if (!isRunning() || !moves || getSound().empty()) return;
  mAudioProxy.setContextEntity(findEntity());
  mAudioProxy.setSpatial(true);
  mAudioProxy.play();
}

void DoorComponent::updateJob() {
  const bool moves = isRunning() && (mDoorState == DOOR_OPENING || mDoorState == DOOR_CLOSING);
  if (moves == mMoveJobProxy.isRegistered()) return;
  if (moves)
    mMoveJobProxy.registerAt(Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments& arguments) { move(arguments); });
  else
    mMoveJobProxy.unregister();
}

void DoorComponent::move(const qsf::JobArguments& arguments) {
  if (!isActive()) return;
  mRemaining -= arguments.getTimePassed();
  if (mRemaining <= qsf::Time()) setDoorState(mDoorState == DOOR_OPENING ? DOOR_OPEN : DOOR_CLOSED);
}

}
