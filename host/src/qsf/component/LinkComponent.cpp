#include "qsf/component/LinkComponent.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <utility>

namespace qsf {

namespace {

constexpr StringHash LOCAL_POSITION{"LocalPosition"};
constexpr StringHash LOCAL_ROTATION{"LocalRotation"};

TransformComponent* transformOf(const LinkComponent& link) {
  Entity* entity = link.findEntity();
  return entity ? entity->getComponent<TransformComponent>() : nullptr;
}

}

static const DeclaredClass<LinkComponent> declared;

void LinkComponent::declareCamp() {
  camp::Class::declare<LinkComponent>("qsf::LinkComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("ParentId", &LinkComponent::getParentId, &LinkComponent::setParentId)
      .tag(UNSIGNED_TAG)
      .property("LocalPosition", &LinkComponent::getLocalPosition, &LinkComponent::setLocalPosition)
      .property("LocalRotation", &LinkComponent::getLocalRotation, &LinkComponent::setLocalRotation);
}

void LinkComponent::setParentId(std::uint64_t parentId) {
  Entity* entity = findEntity();
  if (parentId == mParentId || !entity) // a prefab's component has no world to link in
    return;
  if (parentId == UNINITIALIZED_ID) return unlinkFromParent();
  Entity* parentEntity = entity->getMap().getEntityById(parentId);
  LinkComponent* parent = parentEntity ? parentEntity->getOrCreateComponent<LinkComponent>() : nullptr;
  if (!parent || parent == this || parent->isBelow(*this)) {
    logMessage(LogSystem::WARNING, "Entity " + std::to_string(getEntityId()) + " cannot be linked below entity " +
                                       std::to_string(parentId) +
                                       (parent ? ", which is itself or below it" : ", which doesn't exist"));
    return;
  }
  leaveParent();
  mParent = parent;
  mParentId = parentId;
  parent->addChild(*this);
  updateLocalTransform();
}

void LinkComponent::unlinkFromParent() { leaveParent(); }

void LinkComponent::setLocalPosition(const glm::vec3& position) {
  mLocalPosition = position;
  updateWorldTransform();
  promotePropertyChange(LOCAL_POSITION);
}

void LinkComponent::setLocalRotation(const glm::quat& rotation) {
  mLocalRotation = rotation;
  updateWorldTransform();
  promotePropertyChange(LOCAL_ROTATION);
}

void LinkComponent::onOwnerMoved() {
  updateLocalTransform();
  updateChildren();
}

void LinkComponent::detach() {
  leaveParent();
  const std::vector<LinkComponent*> children = getChildLinks();
  for (LinkComponent* child : children)
    child->leaveParent();
}

const std::vector<LinkComponent*>& LinkComponent::getChildLinks() const {
  closeGaps();
  return mChildren;
}

void LinkComponent::closeGaps() const {
  if (mNumberOfGaps == 0) return;
  std::erase(mChildren, nullptr);
  mNumberOfGaps = 0;
  for (std::size_t i = 0; i < mChildren.size(); ++i)
    mChildren[i]->mPlaceInParent = i;
}

void LinkComponent::addChild(LinkComponent& child) {
  child.mPlaceInParent = mChildren.size();
  mChildren.push_back(&child);
}

void LinkComponent::forgetChild(LinkComponent& child) {
  mChildren[child.mPlaceInParent] = nullptr;
  ++mNumberOfGaps;
  if (mNumberOfGaps * 2 > mChildren.size()) closeGaps();
}

bool LinkComponent::isBelow(const LinkComponent& other) const {
  for (const LinkComponent* link = this; link; link = link->mParent)
    if (link == &other) return true;
  return false;
}

void LinkComponent::leaveParent() {
  if (mParent) mParent->forgetChild(*this);
  mParent = nullptr;
  mParentId = UNINITIALIZED_ID;
}

void LinkComponent::updateLocalTransform() {
  const TransformComponent* own = transformOf(*this);
  const TransformComponent* parent = mParent ? transformOf(*mParent) : nullptr;
  if (!own || !parent) return;
  const glm::quat inverse = glm::conjugate(parent->getRotation());
  mLocalPosition = inverse * (own->getPosition() - parent->getPosition());
  const glm::quat before = std::exchange(mLocalRotation, inverse * own->getRotation());
  if (isPropertyChangeHeard() && mLocalRotation != before) promotePropertyChange(LOCAL_ROTATION);
}

void LinkComponent::updateWorldTransform() {
  TransformComponent* own = transformOf(*this);
  const TransformComponent* parent = mParent ? transformOf(*mParent) : nullptr;
  if (!own || !parent) return;
  own->place(parent->getPosition() + parent->getRotation() * mLocalPosition, parent->getRotation() * mLocalRotation);
  updateChildren();
}

void LinkComponent::updateChildren() {
  std::vector<LinkComponent*> moved{this}; // no recursion: a script may build a chain of any length
  while (!moved.empty()) {
    const LinkComponent* link = moved.back();
    moved.pop_back();
    const TransformComponent* parent = transformOf(*link);
    for (LinkComponent* child : link->getChildLinks()) {
      if (TransformComponent* transform = transformOf(*child); transform && parent)
        transform->place(parent->getPosition() + parent->getRotation() * child->mLocalPosition,
                         parent->getRotation() * child->mLocalRotation);
      moved.push_back(child);
    }
  }
}

}
