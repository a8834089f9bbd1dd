#include "game_plugin/multiplayer/ScriptHandler.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

namespace script {

struct ActivateTriggerOnClientSideEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A trigger that isn't found is sent all the same, as one that nobody has.",
  };

  Argument trigger;
  Argument callers;
  Argument target;
  Argument player;
};

static void read(ActivateTriggerOnClientSideEffect& effect, ParameterReader& in) {
  effect.trigger = in.trigger(1, "My_TriggerName", "TriggerName", "Name of the trigger");
  effect.callers = in.list(2, "no_list", "CallerList", "The list of callers (for example the selected units");
  effect.target = in.list(3, "no_list", "TargetList", "The target unit. Only the first entity is used!");
  effect.player = in.number(4, "0", "PlayerId", "PlayerId which is transmitted");
}

static void run(const ActivateTriggerOnClientSideEffect& effect, ScenarioHandler& handler) {
  if (isLocalPlayerClient()) return;
  const multiplayer::ScriptHandler* sender = multiplayer::ScriptHandler::get();
  const EntityIds targets = handler.ResolveEntityList(effect.target);
  if (!sender) {
    logInfo("Cant send Instructions (GUISYNC)");
    return;
  }
  const auto player = static_cast<std::uint8_t>(truncateToInt(handler.ResolveFloat(effect.player)));
  const EntityIds callers = handler.ResolveEntityList(effect.callers);
  const std::uint32_t hash = handler.GetTriggerHash(handler.ResolveString(effect.trigger));
  sender->sendTriggerToAllClients(hash, {callers.begin(), callers.end()},
                                  targets.empty() ? qsf::UNINITIALIZED_ID : *targets.begin(), player);
}

EFFECT(ActivateTriggerOnClientSide, "Multiplayer",
       "Activates a trigger for the Clientside and synchronizes up to two lists")

}
