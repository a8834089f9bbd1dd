#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"

#include "qsf/Qsf.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct SetDayTimeEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The second comes before the minute: 12, 30, 45 is 12:45:30.",
      "What is too much for a part carries over: 90 minutes are an hour and a half, and a day begins anew at midnight. "
      "A fraction of an hour or of a minute has no influence.",
  };

  float hour = 12;
  float second = 0;
  float minute = 0;
};

static void read(SetDayTimeEffect& effect, ParameterReader& in) {
  effect.hour = in.decimal(1, 12, "Hour", "Hour of the day");
  effect.second = in.decimal(2, 0, "Second", "Second of the minute");
  effect.minute = in.decimal(3, 0, "Minute", "Minute of the hour");
}

static void run(const SetDayTimeEffect& effect, ScenarioHandler& /*handler*/) {
  const qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  auto* clock = core ? core->getComponent<qsf::game::TimeOfDayComponent>() : nullptr;
  if (!clock) return logError("SetDayTimeEffect::TimeOfDayComponent was not found");
  qsf::Time time;
  time.setHours(static_cast<double>(effect.hour));
  time.setMinutes(static_cast<double>(effect.minute));
  time.setSeconds(static_cast<double>(effect.second));
  clock->setTime(time);
}

EFFECT(SetDayTime, "General", "Sets the time of the day")

}
