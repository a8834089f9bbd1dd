#pragma once
#include "qsf/component/Component.h"

namespace em5 {

/// What is left of its entity, and what bursts out of it. Property "DamageState": 0 intact, 1 damaged, as by each fire,
/// 2 burnt out; other numbers are kept as they are.
class QSF_API DamageComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::DamageComponent"};
  explicit DamageComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  enum DamageState { INTACT = 0, DAMAGED = 1, BURNT_OUT = 2 };
  int getDamageState() const { return mDamageState; }
  void setDamageState(int state) { mDamageState = state; }
  /// What is damaged worse stays so.
  void worsenDamageState(int state);

  /// A burst of flames to be seen for a moment. Noted in the call recorder.
  void showExplosionFireParticles() const;

private:
  int mDamageState = INTACT;
};

}
CAMP_TYPE_NONCOPYABLE(em5::DamageComponent)
