#include "game_plugin/action/UseEquipmentAction.h"

#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include <algorithm>

namespace script {

struct UseEquipmentActionEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "All four messages come, however few the animations are, but of two animations: then the action ends with a "
      "fault after the third message.",
      "A bar stays when the action is taken off before its end.",
  };

  Argument callers;
  Argument targets;
  Argument animation;
  Argument message;
  Argument maximumDistance;
  bool moveToTarget = true;
  Argument targetPointProvider;
  Argument totalAnimationTime;
};

/// What stands in the line if no animation does; one that doesn't exist, so that nothing plays.
static constexpr const char* NO_ANIMATION = "no_Animation";

static void read(UseEquipmentActionEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Entities that act");
  effect.targets = in.list(2, "no_list", "EntityList Target", "Entity on which they act; the first that exists");
  effect.animation =
      in.of(ParameterRole::ANIMATION, 3, NO_ANIMATION, "Animation (Local Asset Name)",
            "Up to three animations with blanks between, each with a comma and a number of repetitions if it is to be "
            "played more than once: \"em5/animation/test/wave,2 em5/animation/test/nod\"");
  effect.message = in.raw(4, "no_message", "Specific_Message",
                          "Message that the script hears, with a number behind it: 0 before the first animation, 1, 2 "
                          "and 3 after the first, second and third");
  effect.maximumDistance = in.number(5, "10", "MaxDistance", "Units to the target at most");
  effect.moveToTarget = in.flag(6, true, "Unit shall Move to Target", "Moves if the target is farther away");
  effect.targetPointProvider = in.raw(7, "em5::EnterVehicleTargetPointProvider", " TargetPointProvider",
                                      "Class name of what tells where to stand beside the target");
  effect.totalAnimationTime =
      in.number(8, "0", "TotalAnimationTime", "Seconds after which the bar over the unit is full; 0 for no bar");
}

static void hintUnknownAnimations(const UseEquipmentAction& action) {
  for (const auto& [name, repetitions] : action.getAnimations())
    if (!name.empty() && name != NO_ANIMATION && !qsf::AssetProxy(name).getAsset()) hintMissingAsset(name);
}

static void run(const UseEquipmentActionEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.targets);
  const EntityIds targets = handler.ResolveEntityList(effect.targets);
  const auto target = std::ranges::find_if(targets, [](std::uint64_t id) { return findEntity(id) != nullptr; });
  if (target == targets.end()) return;
  forEachEntity(handler, effect.callers, [&](qsf::Entity& caller) {
    const float totalAnimationTime = handler.ResolveFloat(effect.totalAnimationTime);
    const float maximumDistance = handler.ResolveFloat(effect.maximumDistance);
    auto& action = actionsOf(caller).pushAction<UseEquipmentAction>(100, qsf::action::APPEND_TO_BACK);
    action.init(*target, effect.animation, effect.message, totalAnimationTime, maximumDistance, effect.moveToTarget,
                effect.targetPointProvider);
    if (hints::isOn()) hintUnknownAnimations(action);
  });
}

EFFECT(UseEquipmentAction, "Actions",
       "Lets entities go to a target, turn to it and play animations there; the script hears how far they are")

}
