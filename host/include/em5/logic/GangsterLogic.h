#pragma once
#include "em5/logic/ActingLogic.h"
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"

#include <cstdint>

namespace em5 {

class FreeplayEvent;

/// What a gangster is up to: it waits, goes to a victim of its choice, does its deed, and begins anew, until it flees.
/// A gangster that is injured, dead, inside or linked to something does nothing. This base does no deed. See
/// docs/host-game.md for times and distances.
class QSF_API GangsterBaseLogic : public ActingLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::GangsterBaseLogic"};
  static void declareCamp();

  /// The player sees that it is a gangster.
  void setAsGangsterFlagged(bool flagged) { mFlagged = flagged; }
  bool isFlagged() const { return mFlagged; }
  /// Runs for the nearest border of the map, behind whatever its plan holds, and is destroyed there; it does no deeds
  /// any more. The number is kept for those who read records. One that flees already goes on.
  void escape(int reason);
  bool isFleeing() const { return mFleeing; }

  /// Whether it could do its deed on the entity now, and the deed itself.
  virtual bool isVictim(qsf::Entity& /*entity*/) const { return false; }
  virtual void doDeed(qsf::Entity& /*victim*/, FreeplayEvent* /*event*/) const {}

protected:
  void onStartup() override;
  void update(qsf::Time timePassed) override;
  /// Class of component that its victims have; uninitialised if it does no deeds.
  virtual qsf::StringHash getVictimComponentId() const { return {}; }

private:
  void flee(qsf::Entity& gangster);
  void planDeed(qsf::Entity& gangster);

  qsf::Time mTimeToDeed;
  bool mFlagged = false;
  bool mFleeing = false;
};

/// Lights what can burn and is no vehicle.
class QSF_API GangsterArsonist : public GangsterBaseLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::GangsterArsonist"};
  static void declareCamp();
  bool isVictim(qsf::Entity& entity) const override;
  void doDeed(qsf::Entity& victim, FreeplayEvent* event) const override;

protected:
  qsf::StringHash getVictimComponentId() const override;
};

/// Breaks electrical boxes that are intact.
class QSF_API GangsterBlackoutFP : public GangsterBaseLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::GangsterBlackoutFP"};
  static void declareCamp();
  bool isVictim(qsf::Entity& entity) const override;
  void doDeed(qsf::Entity& victim, FreeplayEvent* event) const override;

protected:
  qsf::StringHash getVictimComponentId() const override;
};

/// Shoots at civilians.
class QSF_API GangsterCivilArmedLogic : public GangsterBaseLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::GangsterCivilArmedLogic"};
  static void declareCamp();
  bool isVictim(qsf::Entity& entity) const override;
  void doDeed(qsf::Entity& victim, FreeplayEvent* event) const override;

protected:
  qsf::StringHash getVictimComponentId() const override;
};

/// Stabs every person that is no gangster, players' units among them.
class QSF_API GangsterAttackEveryoneLogic : public GangsterBaseLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"em5::GangsterAttackEveryoneLogic"};
  static void declareCamp();
  bool isVictim(qsf::Entity& entity) const override;
  void doDeed(qsf::Entity& victim, FreeplayEvent* event) const override;

protected:
  qsf::StringHash getVictimComponentId() const override;
};

}
CAMP_TYPE_NONCOPYABLE(em5::GangsterBaseLogic)
CAMP_TYPE_NONCOPYABLE(em5::GangsterArsonist)
CAMP_TYPE_NONCOPYABLE(em5::GangsterBlackoutFP)
CAMP_TYPE_NONCOPYABLE(em5::GangsterCivilArmedLogic)
CAMP_TYPE_NONCOPYABLE(em5::GangsterAttackEveryoneLogic)
