#pragma once
#include "qsf/base/Time.h"
#include "qsf/component/MeshAnimationComponent.h"

#include <memory>
#include <string>

namespace em5 {

/// Plays animations on an entity. Made on the spot; lives no longer than the entity.
class QSF_API AnimationHelper {
public:
  explicit AnimationHelper(qsf::Entity& entity) : mEntity(entity) {}

  /// By local asset name, on the entity's qsf::MeshAnimationComponent, which is made if there is none. A blend time
  /// above zero blends. Null, and what plays goes on, if the asset doesn't exist.
  std::shared_ptr<qsf::MeshAnimationChannel> playAnimation(const std::string& animation, bool looped, bool reverse,
                                                           qsf::Time blendTime) const;

  /// Local asset name of what a person does that calls for help out of a window.
  static std::string getAnimationWaveHelpFromWindow();

private:
  qsf::Entity& mEntity;
};

}
