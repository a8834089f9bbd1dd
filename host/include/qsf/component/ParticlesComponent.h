#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/Component.h"

#include <memory>

namespace Ogre {
class MovableObject;
}

namespace qsf {

/// Smoke, sparks, spray. Properties "Particles" (local asset name), "Playing", "RenderQueueGroup": when they are drawn
/// within a picture, 0 to 105, what has a smaller one earlier; 50 at first.
class QSF_API ParticlesComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::ParticlesComponent"};
  explicit ParticlesComponent(Prototype* prototype);
  ~ParticlesComponent() override;
  static void declareCamp();

  const AssetProxy& getParticles() const { return mParticles; }
  void setParticles(const AssetProxy& particles) { mParticles = particles; }
  bool isPlaying() const { return mPlaying; }
  void setPlaying(bool playing) { mPlaying = playing; }

  /// What the renderer draws; it lives as long as the component. Null while the component doesn't run.
  Ogre::MovableObject* getOgreMovableObject() const;

  int getRenderQueueGroup() const;
  /// Numbers beyond the ends are taken for them.
  void setRenderQueueGroup(int group);

private:
  std::unique_ptr<Ogre::MovableObject> mMovableObject;
  AssetProxy mParticles;
  bool mPlaying = true;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::ParticlesComponent)
