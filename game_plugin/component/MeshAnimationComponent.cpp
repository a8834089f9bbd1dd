#include "game_plugin/component/MeshAnimationComponent.h"

#include "game_plugin/component/PropertyTags.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/base/Jobs.h"
#include "qsf/reflection/CampTypes.h"

#include <algorithm>

namespace scenario {

namespace {

constexpr float RESTING_LEVEL = 0.0001f;

}

void MeshAnimationComponent::declareCamp() {
  using Ladder = MeshAnimationComponent;
  constexpr const char* DESCRIPTION =
      "A standalone ladder controller which can be used by camp-reflection or by the AdvancedVehicleControl Component "
      "for the DLK. It is responsible for extending the smaller ladder when there is one attached to the notch";
  camp::Class::declare<Ladder>("scenario::MeshAnimationComponent")
      .tag("Name", "scenario::MeshAnimationComponent")
      .tag("Description", DESCRIPTION)
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Anim", &Ladder::mAnimation)
      .tag("Description", "The animation which is used to extend the arm")
      .tag("AssetType", "animation")
      .property("Entity", &Ladder::mLadderId)
      .tag("Description", "The Ladderentity which you want to control the extending")
      .tag("Default", qsf::UNINITIALIZED_ID)
      .tag(script::SLOT_TAG, script::HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Animation Speed", &Ladder::mAnimationSpeed)
      .tag("Description", "set the speed which your animation has")
      .property("Wanted Level", &Ladder::getWantedLevel, &Ladder::setWantedLevel)
      .tag("Description", "set the extend level which shall be reached")
      .tag("RangeMinimum", 0.0f)
      .tag("RangeMaximum", 1.0f)
      .tag("Serializable")
      .property("Current Level", &Ladder::getCurrentLevel, &Ladder::setCurrentLevel)
      .tag("Description", "set the extend level which we currently have")
      .tag("RangeMinimum", 0.0f)
      .tag("RangeMaximum", 1.0f)
      .tag("Serializable")
      .property("Animation Finished", &Ladder::mAnimationFinished)
      .tag("Description", "True if the Animation job is finished");
}

void MeshAnimationComponent::setWantedLevel(float level) {
  mWantedLevel = level;
  startJob();
}

void MeshAnimationComponent::setCurrentLevel(float level) {
  mCurrentLevel = level;
  if (!isRunning()) return;
  if (const auto channel = fetchChannel()) channel->setOffset(level);
}

bool MeshAnimationComponent::onStartup() {
  mPlaying = true;
  setWantedLevel(RESTING_LEVEL);
  return true;
}

void MeshAnimationComponent::onShutdown() { mJob.unregister(); }

void MeshAnimationComponent::startJob() {
  if (!isRunning() || mCurrentLevel == mWantedLevel) return;
  mAnimationFinished = false;
  mJob.registerAt(em5::Jobs::ANIMATION_VEHICLE, [this](const qsf::JobArguments& arguments) {
    if (update(arguments.getTimePassed().getSeconds())) return;
    mAnimationFinished = true;
    mJob.unregister();
  });
}

bool MeshAnimationComponent::update(float seconds) {
  if (mCurrentLevel == mWantedLevel || !mPlaying) return false;
  const bool up = mWantedLevel > mCurrentLevel;
  const float way = seconds * (mAnimationSpeed / 100.0f);
  float level = std::clamp(mCurrentLevel + (up ? way : -way), 0.0f, 1.0f);
  const auto channel = fetchChannel();
  if (!channel) return false;
  if (up ? level > mWantedLevel : level < mWantedLevel) level = mWantedLevel;
  channel->setOffset(level);
  mCurrentLevel = level;
  return true;
}

std::shared_ptr<qsf::MeshAnimationChannel> MeshAnimationComponent::fetchChannel() const {
  qsf::Entity* ladder = script::findEntity(mLadderId);
  auto* meshAnimation = ladder ? ladder->getComponent<qsf::MeshAnimationComponent>() : nullptr;
  if (!meshAnimation) return nullptr;
  if (meshAnimation->isAnimationPlaying(mAnimation)) return meshAnimation->getChannel();
  auto channel = meshAnimation->blendToAnimation(mAnimation, false, qsf::Time::ZERO, false, mCurrentLevel, 1.0f);
  if (channel) channel->setSpeed(0); // its offset is set by hand
  return channel;
}

}
