#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace em5 {

class FreeplayEvent;

/// How a person is. Health falls through heat; at 0 an injury sets in, the person collapses and its life falls until it
/// is healed or dead. Properties "Injured" (setting it injures with a wound, clearing it heals), "Injury" (its name),
/// "Dead" (setting it kills; the dead stay dead), "Collapsed" (lies on the ground),
/// "LifeEnergy", "HealthEnergy", "MaximumLifeEnergy", "MaximumHealthEnergy". See docs/host-game.md for the rates.
class QSF_API HealthComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::HealthComponent"};
  explicit HealthComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isInjured() const { return mInjured; }
  /// True injures an uninjured person with a wound, false heals: full health, no injury. The dead stay as they are.
  void setInjured(bool injured);
  bool isDead() const { return mLifeEnergy <= 0.0f; }
  /// Hash of the injury; uninitialised without one.
  qsf::StringHash getInjuryId() const { return mInjuryId; }
  /// A person that is injured already or dead keeps what it has. Returns whether the injury set in.
  bool injurePersonById(qsf::StringHash injuryId);
  /// The same with an event, which may be null: the person is put into it (reason 1). Without `collapse` it stays on
  /// its feet. An uninitialised injury injures nobody.
  bool injurePersonByEventById(qsf::StringHash injuryId, FreeplayEvent* event, bool collapse = true);
  /// With an event, the person is put into it (reason 1).
  void killPerson(FreeplayEvent* event = nullptr);
  bool isCollapsed() const { return mCollapsed; }

  float getLifeEnergy() const;
  float getHealthEnergy() const;
  float getMaximumLifeEnergy() const { return mMaximumLifeEnergy; }
  float getMaximumHealthEnergy() const { return mMaximumHealthEnergy; }
  /// Energies are kept between 0 and their maximum; a value that isn't a number changes nothing. No life means death;
  /// which injury sets in when there is no health left is for the caller to say. The property HealthEnergy injures with
  /// a wound.
  void setLifeEnergy(float energy);
  void setHealthEnergy(float energy);
  /// At least 1. Energies above it read as the maximum.
  void setMaximumLifeEnergy(float energy);
  void setMaximumHealthEnergy(float energy);
  /// Takes health away; at 0 the given injury sets in.
  void hurt(float energy, qsf::StringHash injuryId);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void setDeadByReflection(bool dead);
  void setInjuryByReflection(qsf::StringHash injuryId);
  void setHealthEnergyByReflection(float energy);
  void updateJob();
  void loseLife(const qsf::JobArguments& arguments);

  qsf::JobProxy mLifeJobProxy;
  qsf::StringHash mInjuryId;
  float mLifeEnergy = 100.0f;
  float mHealthEnergy = 100.0f;
  float mMaximumLifeEnergy = 100.0f;
  float mMaximumHealthEnergy = 100.0f;
  bool mInjured = false;
  bool mCollapsed = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::HealthComponent)
