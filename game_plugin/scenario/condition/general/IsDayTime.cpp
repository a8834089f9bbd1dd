#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

#include "qsf/Qsf.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct IsDayTimeCondition : DefaultCondition {
  std::uint32_t minHour;
  std::uint32_t minMinute;
  std::uint32_t maxHour;
  std::uint32_t maxMinute;
};

static void read(IsDayTimeCondition& condition, const Tokens& tokens) {
  const auto readUnsigned = [&](int index, int defaultValue, std::string_view name, std::string_view description) {
    return static_cast<std::uint32_t>(readIntParameter(tokens, index, defaultValue, name, description));
  };
  condition.minHour = readUnsigned(1, 0, "MinHour", "lower hour");
  condition.maxHour = readUnsigned(2, 24, "MaxHour", "upper hour");
  condition.minMinute = readUnsigned(3, 0, "MinMinute", "lower minute");
  condition.maxMinute = readUnsigned(4, 60, "MaxMinute", "upper minute");
}

/// Kept: hour and minute are tested each for itself. A span from 8:50 to 9:10 can't be told this way; scripts write two
/// conditions.
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
