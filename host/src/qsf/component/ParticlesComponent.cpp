#include "qsf/component/ParticlesComponent.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <OgreAxisAlignedBox.h>
#include <OgreMovableObject.h>
#include <OgreRenderQueue.h>

#include <algorithm>

namespace qsf {

namespace {

/// Stands in the renderer's queues without anything to draw: there is no picture.
class UnseenParticles : public Ogre::MovableObject {
public:
  const Ogre::String& getMovableType() const override {
    static const Ogre::String TYPE = "UnseenParticles";
    return TYPE;
  }
  const Ogre::AxisAlignedBox& getBoundingBox() const override { return Ogre::AxisAlignedBox::BOX_NULL; }
  Ogre::Real getBoundingRadius() const override { return 0; }
  void _updateRenderQueue(Ogre::RenderQueue*) override {}
  void visitRenderables(Ogre::Renderable::Visitor*, bool) override {}
};

}

static const DeclaredClass<ParticlesComponent> declared;

ParticlesComponent::ParticlesComponent(Prototype* prototype)
    : Component(prototype), mMovableObject(std::make_unique<UnseenParticles>()) {}

ParticlesComponent::~ParticlesComponent() = default;

void ParticlesComponent::declareCamp() {
  camp::Class::declare<ParticlesComponent>("qsf::ParticlesComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Particles", &ParticlesComponent::getParticles, &ParticlesComponent::setParticles)
      .property("Playing", &ParticlesComponent::isPlaying, &ParticlesComponent::setPlaying)
      .property("RenderQueueGroup", &ParticlesComponent::getRenderQueueGroup, &ParticlesComponent::setRenderQueueGroup);
}

Ogre::MovableObject* ParticlesComponent::getOgreMovableObject() const {
  return isRunning() ? mMovableObject.get() : nullptr;
}

int ParticlesComponent::getRenderQueueGroup() const { return mMovableObject->getRenderQueueGroup(); }

void ParticlesComponent::setRenderQueueGroup(int group) {
  const int nearest = std::clamp(group, 0, static_cast<int>(Ogre::RENDER_QUEUE_MAX));
  mMovableObject->setRenderQueueGroup(static_cast<Ogre::uint8>(nearest));
}

}
