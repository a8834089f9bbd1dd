#pragma once
#include "em5/audio/AudioProxy.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace em5 {

/// A door, closed at first. Opening and closing take time. Properties "DoorState", "OpeningTime" (seconds, 2 at first),
/// "Sound" (local asset name of what is played once when it begins to move, to its end; empty at first).
/// Derived doors declare their own class; the enum is declared with this one.
class QSF_API DoorComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::DoorComponent"};
  explicit DoorComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  enum DoorState { DOOR_CLOSED = 0, DOOR_CLOSING = 1, DOOR_OPEN = 2, DOOR_OPENING = 3 };

  DoorState getDoorState() const { return mDoorState; }
  /// Puts the door into that state at once; a door set to a moving state starts to move.
  void setDoorState(DoorState state);
  /// A door that is open or opening stays as it is.
  void openDoor();
  /// A door that is closed or closing stays as it is.
  void closeDoor();

  /// Seconds that a whole movement takes; at least 0. A door that turns back on its way takes as long as it was under
  /// way.
  float getOpeningTime() const { return static_cast<float>(mOpeningTime.getSecondsAsDouble()); }
  void setOpeningTime(float seconds);

  const std::string& getSound() const { return mAudioProxy.getSettings().sourceFile; }
  /// Holds from the next movement on.
  void setSound(const std::string& sourceFile) { mAudioProxy.setSourceFile(sourceFile); }

protected:
  bool onStartup() override;
  void onShutdown() override;
  /// Plays the door's sound.
  AudioProxy& getAudioProxy() { return mAudioProxy; }

private:
  void updateJob();
  void playSound();
  void move(const qsf::JobArguments& arguments);

  qsf::JobProxy mMoveJobProxy;
  AudioProxy mAudioProxy;
  qsf::Time mOpeningTime = qsf::Time::fromMicroseconds(2'000'000);
  qsf::Time mRemaining; ///< until the movement ends
  DoorState mDoorState = DOOR_CLOSED;
};

}
CAMP_TYPE_NONCOPYABLE(em5::DoorComponent)
CAMP_TYPE(em5::DoorComponent::DoorState)
