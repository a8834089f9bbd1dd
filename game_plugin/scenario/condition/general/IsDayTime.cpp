#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct IsDayTimeCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "Hour and minute are tested each for itself: a span from 8:50 to 9:10 takes two conditions.",
  };

  std::uint32_t minHour;
  std::uint32_t minMinute;
  std::uint32_t maxHour;
  std::uint32_t maxMinute;
};

static void read(IsDayTimeCondition& condition, ParameterReader& in) {
  const auto readUnsigned = [&](int index, int defaultValue, std::string_view name, std::string_view description) {
    return static_cast<std::uint32_t>(in.integer(index, defaultValue, name, description));
  };
  condition.minHour = readUnsigned(1, 0, "MinHour", "lower hour");
  condition.maxHour = readUnsigned(2, 24, "MaxHour", "upper hour");
  condition.minMinute = readUnsigned(3, 0, "MinMinute", "lower minute");
  condition.maxMinute = readUnsigned(4, 60, "MaxMinute", "upper minute");
}

static bool test(const IsDayTimeCondition& condition, ScenarioHandler&) {
  const qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  const auto* timeOfDay = core ? core->getComponent<qsf::game::TimeOfDayComponent>() : nullptr;
  if (!timeOfDay) {
    logError("IsDayTimeCondition::TimeOfDayComponent was not found");
    return false;
  }
  const std::uint32_t hour = static_cast<std::uint32_t>(timeOfDay->getHour());
  const std::uint32_t minute = static_cast<std::uint32_t>(timeOfDay->getMinute());
  return hour >= condition.minHour && hour <= condition.maxHour && minute >= condition.minMinute &&
         minute <= condition.maxMinute;
}

CONDITION(IsDayTime, "Misc",
          "check, if current time is between lower hour and upper hour and if time is between lower minute and upper "
          "minute")

}
