#pragma once
#include "qsf/component/Component.h"

#include <memory>

class btCollisionWorld;

namespace qsf {

/// The map's collision world, on its core entity. Holds the collision objects of all running collision components.
class QSF_API PhysicsWorldComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::PhysicsWorldComponent"};
  explicit PhysicsWorldComponent(Prototype* prototype);
  ~PhysicsWorldComponent() override;
  static void declareCamp();

  btCollisionWorld& getCollisionWorld() const;

protected:
  bool onStartup() override;

private:
  struct World;
  std::unique_ptr<World> mWorld;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::PhysicsWorldComponent)
