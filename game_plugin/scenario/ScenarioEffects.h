#pragma once
#include "game_plugin/scenario/records/EntryGroup.h"

#include <memory>
#include <vector>

namespace script {

EFFECT_GROUP(ScenarioEffects_Brill)
EFFECT_GROUP(ScenarioEffects_Tarn)
EFFECT_GROUP(ScenarioEffects_Event)
EFFECT_GROUP(ScenarioEffects_Gui)
EFFECT_GROUP(ComponentsAndVariablesEffects)
EFFECT_GROUP(MPEffects)
EFFECT_GROUP(PositionAndRotationEffects)
EFFECT_GROUP(GamepadEffects)
EFFECT_GROUP(ScenarioEffects_Editor)

/// The front door of the effect catalogue: makes records at load time and runs lists of them. Owns its groups.
class ScenarioEffects {
public:
  explicit ScenarioEffects(ScenarioHandler* handler);
  virtual ~ScenarioEffects();
  ScenarioEffects(const ScenarioEffects&) = delete;
  ScenarioEffects& operator=(const ScenarioEffects&) = delete;

  /// A new record, or null, with a message, for a name that no group knows.
  DefaultEffect* create(const Tokens& tokens) const;

  /// Runs the effects in order. 1 if a `Return` ended the list, also one inside a block, else 0. Also ends, with 1,
  /// when an effect has stopped the script that runs it. Throws when handwritten block calls lead into each other
  /// without end, or to a block that doesn't exist.
  std::uint32_t run(const Effects& effects, std::uint32_t triggerHash) const;

  std::vector<const EffectGroup*> groupsInCreationOrder() const;
  std::vector<const EffectGroup*> groupsInExecutionOrder() const;
  /// The entries that the registry makes itself, before it asks a group.
  static EffectGroup::Chain ownEntries();

private:
  struct Nesting;
  std::uint32_t runList(const Effects& effects, std::uint32_t triggerHash, Nesting& nesting) const;
  std::uint32_t runBlock(const DefaultEffect& effect, Nesting& nesting) const;

  ScenarioEffects_Brill mBrill;
  ScenarioEffects_Tarn mTarn;
  ScenarioEffects_Event mEvent;
  ScenarioEffects_Gui mGui;
  ComponentsAndVariablesEffects mComponentsAndVariables;
  MPEffects mMultiplayer;
  PositionAndRotationEffects mPositionAndRotation;
  GamepadEffects mGamepad;
  ScenarioEffects_Editor mEditor;
  ScenarioHandler* mHandler;
};

}
