#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/gui/HintHelper.h"
#include "em5/plugin/Plugin.h"
#include "qsf/base/Ids.h"

namespace script {

struct StartScriptedEventEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An event that still has the id -1 is the one that gets id and name, even if the game refuses to start another.",
  };

  Argument uniqueId;
  Argument eventName;
  Argument eventMessage;
  bool showSupervisor = true;
};

static void read(StartScriptedEventEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "The unique event id. Should not be -1 for new events");
  effect.eventName = in.text(2, "Missing Event Name", "Event Name", "The shown Name of the event");
  effect.eventMessage =
      in.text(3, "", "Event Message", "The message which is told by the supervisor and shown as hint");
  effect.showSupervisor = in.flag(4, true, "", "If true, the supervisor-window will be shown");
}

static void tellMessage(const StartScriptedEventEffect& effect, ScenarioHandler& handler) {
  const std::string message = em5::HintHelper::getRandomStringOfIdString(handler.ResolveString(effect.eventMessage));
  if (effect.showSupervisor)
    em5::HintHelper::showSupervisorMessage(message);
  else
    em5::HintHelper::showHint(message, qsf::getUninitialized<std::uint32_t>(), qsf::Time::ZERO);
}

static void run(const StartScriptedEventEffect& effect, ScenarioHandler& handler) {
  constexpr unsigned int DRIVEN_BY_A_SCRIPT = 1;
  const em5::Plugin* game = em5::Plugin::getInstance();
  if (!game) return;
  game->getFreeplaySystem().triggerEventByPath(em5::FreeplayEventTriggerInfo(DRIVEN_BY_A_SCRIPT),
                                               "ScenarioEvent_Definition/ScenarioEvent");
  ScenarioEvent* event = findUnclaimedScenarioEvent();
  if (!event) return;
  event->uniqueId = truncateToInt(handler.ResolveFloat(effect.uniqueId));
  event->setEventName(handler.ResolveString(effect.eventName));
  if (!effect.eventMessage.text().empty()) tellMessage(effect, handler);
}

EFFECT(StartScriptedEvent, "Events",
       "Starts a scripted event. To complete the event you need to call AllowScriptedEventToFinish(true); after the "
       "initialization. You can only have one Event of this type running")

}
