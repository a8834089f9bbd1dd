#pragma once
#include "game_plugin/scenario/program/EntryGroup.h"

#include <span>
#include <string_view>

namespace script {

extern const EffectGroup ScenarioEffects_Brill;
extern const EffectGroup ScenarioEffects_Tarn;
extern const EffectGroup ScenarioEffects_Event;
extern const EffectGroup ScenarioEffects_Gui;
extern const EffectGroup ComponentsAndVariablesEffects;
extern const EffectGroup MPEffects;
extern const EffectGroup PositionAndRotationEffects;
extern const EffectGroup GamepadEffects;
extern const EffectGroup ScenarioEffects_Editor;

/// The front door of the effect catalogue: finds entries when a line is read and runs lists of records for one handler.
class ScenarioEffects {
public:
  explicit ScenarioEffects(ScenarioHandler* handler) : mHandler(handler) {}

  /// The groups in the order in which they are asked for a name. The first is that of the entries which stand before
  /// all groups.
  static std::span<const EffectGroup* const> groups();
  /// The first entry of that name, or null.
  static const EffectEntry* find(std::string_view name);

  /// Runs the effects in order. 1 if a `Return` ended the list, also one inside a block, else 0. Also ends, with 1,
  /// when an effect has stopped the script that runs it. Throws when handwritten block calls lead into each other
  /// without end, or to a block that doesn't exist.
  std::uint32_t run(const Effects& effects, std::uint32_t triggerHash) const;

private:
  struct Nesting;
  std::uint32_t runList(const Effects& effects, std::uint32_t triggerHash, Nesting& nesting) const;
  std::uint32_t runBlock(const DefaultEffect& effect, Nesting& nesting) const;

  ScenarioHandler* mHandler;
};

}
