#include "qsf/component/MeshAnimationComponent.h"

#include "qsf/base/JsonFile.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"
#include "qsf/skeleton/SkeletonManager.h"
#include "qsf/skeleton/SkeletonPose.h"

#include <stdexcept>

namespace qsf {

namespace {

const RecordedOperation playAnimationCall{"qsf::MeshAnimationComponent::playAnimation", "asset, loop, reverse, 0"};
const RecordedOperation blendToAnimationCall{"qsf::MeshAnimationComponent::blendToAnimation",
                                             "asset, loop, reverse, seconds of blending"};

const Time DEFAULT_LENGTH = Time::fromMicroseconds(1000000);

/// Animations without a JSON file of their own are real ones of the game, whose length a headless host doesn't know.
Time readLength(const BaseAsset& asset) {
  if (!asset.getFile().ends_with(".json")) return DEFAULT_LENGTH;
  try {
    const std::string file = asset.getFile();
    const Json document = readJsonFile(file);
    const JsonPlace length = JsonPlace(document, file).member("length");
    if (!(length.asNumber() > 0)) length.fail("an animation's length is above 0 seconds");
    return Time::fromSeconds(length.asNumber());
  } catch (const std::exception& fault) {
    logMessage(LogSystem::WARNING, std::string(fault.what()) + "; the animation is taken to last a second");
    return DEFAULT_LENGTH;
  }
}

void recordPlay(const RecordedOperation& operation, const AssetProxy& animation, bool looped, bool reverse,
                Time blendTime) {
  operation.record({toText(animation.getLocalAssetId()), looped ? "1" : "0", reverse ? "1" : "0",
                    toText(blendTime.getSecondsAsDouble())});
}

}

MeshAnimationChannel::MeshAnimationChannel(const AssetProxy& animation, Time length, Repeat repeat, Direction direction,
                                           float speed)
    : mAnimation(animation), mLength(length), mPosition(direction == Direction::REVERSE ? length : Time()),
      mRepeat(repeat), mDirection(direction), mSpeed(speed > 0 ? speed : 1.0f) {}

float MeshAnimationChannel::getOffset() const {
  return static_cast<float>(mPosition.getSecondsAsDouble() / mLength.getSecondsAsDouble());
}

void MeshAnimationChannel::setOffset(float offset) {
  const float clamped = offset > 0 ? std::min(offset, 1.0f) : 0.0f;
  mPosition = Time::fromSeconds(static_cast<double>(clamped) * mLength.getSecondsAsDouble());
}

void MeshAnimationChannel::advance(Time timePassed) {
  if (mFinished || mSpeed == 0.0f) return;
  const Time step = Time::fromSeconds(timePassed.getSecondsAsDouble() * static_cast<double>(mSpeed));
  const Time way = mDirection == Direction::FORWARD ? mLength - mPosition : mPosition;
  if (step < way) {
    mPosition = mDirection == Direction::FORWARD ? mPosition + step : mPosition - step;
    return;
  }
  mFinished = mRepeat == Repeat::ONCE;
  const Time over =
      mFinished ? Time() : Time::fromMicroseconds((step - way).getMicroseconds() % mLength.getMicroseconds());
  const bool atEnd = mFinished == (mDirection == Direction::FORWARD); // a finished one rests where it got to
  const Time base = atEnd ? mLength : Time();
  mPosition = mDirection == Direction::FORWARD ? base + over : base - over;
}

MeshAnimationComponent::MeshAnimationComponent(Prototype* prototype) : Component(prototype) {}

MeshAnimationComponent::~MeshAnimationComponent() {
  if (mChannel) mChannel->stop();
}

static const DeclaredClass<MeshAnimationComponent> declared;

void MeshAnimationComponent::declareCamp() {
  camp::Class::declare<MeshAnimationComponent>("qsf::MeshAnimationComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Animation", &MeshAnimationComponent::getAnimationName, &MeshAnimationComponent::setAnimationName)
      .property("Skeleton", &MeshAnimationComponent::getSkeleton, &MeshAnimationComponent::setSkeleton);
}

std::shared_ptr<MeshAnimationChannel> MeshAnimationComponent::playAnimation(const AssetProxy& animation, bool looped,
                                                                            bool reverse, float speed) {
  recordPlay(playAnimationCall, animation, looped, reverse, Time());
  return startAnimation(animation, looped, reverse, speed);
}

std::shared_ptr<MeshAnimationChannel> MeshAnimationComponent::startAnimation(const AssetProxy& animation, bool looped,
                                                                             bool reverse, float speed) {
  const BaseAsset* asset = animation.getAsset();
  if (!asset) return nullptr;
  clearAnimation();
  using Channel = MeshAnimationChannel;
  mChannel =
      std::make_shared<Channel>(animation, readLength(*asset), looped ? Channel::Repeat::LOOPED : Channel::Repeat::ONCE,
                                reverse ? Channel::Direction::REVERSE : Channel::Direction::FORWARD, speed);
  updateRegistration();
  return mChannel;
}

std::shared_ptr<MeshAnimationChannel> MeshAnimationComponent::blendToAnimation(const AssetProxy& animation, bool looped,
                                                                               Time blendTime, bool reverse,
                                                                               float offset, float speed) {
  recordPlay(blendToAnimationCall, animation, looped, reverse, blendTime);
  std::shared_ptr<MeshAnimationChannel> channel = startAnimation(animation, looped, reverse, speed);
  if (channel && offset > 0) channel->setOffset(offset);
  return channel;
}

void MeshAnimationComponent::clearAnimation() {
  if (mChannel) mChannel->stop();
  mChannel.reset();
  mPoseIsStale = mPose != nullptr;
  updateRegistration();
}

bool MeshAnimationComponent::isAnimationPlaying(const AssetProxy& animation) const {
  return mChannel && mChannel->getAnimation().getLocalAssetId() == animation.getLocalAssetId();
}

bool MeshAnimationComponent::onStartup() {
  updateRegistration();
  return true;
}

void MeshAnimationComponent::onShutdown() { mJob.unregister(); }

std::string MeshAnimationComponent::getAnimationName() const {
  return mChannel ? mChannel->getAnimation().getLocalAssetName() : std::string();
}

void MeshAnimationComponent::setAnimationName(const std::string& name) {
  if (name.empty()) return clearAnimation();
  if (!startAnimation(AssetProxy(name), false, false, 1.0f))
    throw std::invalid_argument("no mounted project has an animation \"" + name + "\"");
}

void MeshAnimationComponent::updateRegistration() {
  if (!isRunning() || (!mChannel && !mPoseIsStale)) return mJob.unregister();
  if (!mJob.isRegistered()) mJob.registerInSimulation([this](const JobArguments& arguments) { update(arguments); });
}

void MeshAnimationComponent::update(const JobArguments& arguments) {
  if (!isActive()) return;
  if (mChannel) mChannel->advance(arguments.getTimePassed());
  if (mChannel && mChannel->isFinished()) clearAnimation();
  if (mPose) showPose();
  updateRegistration();
}

void MeshAnimationComponent::setSkeleton(const AssetProxy& skeleton) {
  mSkeleton = skeleton;
  mPose.reset();
  mPoseIsStale = false;
  updateRegistration();
}

SkeletonPose* MeshAnimationComponent::findPose() {
  const UniqueInstance<SkeletonManager> manager;
  if (mPose || !mSkeleton.getLocalAssetId().isInitialized() || !manager) return mPose.get();
  if (auto skeleton = manager->findSkeleton(mSkeleton)) {
    mPose = std::make_unique<SkeletonPose>(std::move(skeleton));
    showPose();
  }
  return mPose.get();
}

void MeshAnimationComponent::showPose() {
  mPose->show(getAnimationName(), mChannel ? mChannel->getOffset() : 0.0f);
  mPoseIsStale = false;
}

Ogre::Bone* MeshAnimationComponent::manualBoneControl(const std::string& boneName, bool manual, bool* wasManual) {
  const std::optional<BoneState> before = getBoneState(boneName);
  if (wasManual) *wasManual = before && before->manual;
  if (!before) return nullptr;
  if (!manual) {
    mPoseIsStale = true;
    updateRegistration();
  }
  return mPose->setManual(boneName, manual);
}

std::optional<BoneState> MeshAnimationComponent::getBoneState(const std::string& boneName) {
  const SkeletonPose* pose = findPose();
  return pose ? pose->getState(boneName) : std::nullopt;
}

}
