#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Orders.h"

#include <algorithm>

namespace script {

struct ModifyVehicleStartPersonalEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A person who was set to 0 is added once more instead of changed.",
  };

  Argument vehicleOrderInfo;
  Argument personOrderInfo;
  Argument newNumber;
  Argument numberOfSeats;
};

static void read(ModifyVehicleStartPersonalEffect& effect, ParameterReader& in) {
  effect.vehicleOrderInfo = in.of(ParameterRole::ORDER_INFO, 1, "RTW", "VehicleOrderInfo", "Kind of vehicle");
  effect.personOrderInfo = in.of(ParameterRole::ORDER_INFO, 2, "Firefighter", "PersonOrderInfo", "Kind of person");
  effect.newNumber = in.number(3, "1", "New Number of Personal", "How many of them come with the vehicle");
  effect.numberOfSeats = in.number(4, "-1", "Number of Seats", "Seats of the vehicle; -1 leaves them");
}

using Personnel = std::vector<em5::OrderInfo::StartPersonnel>;

static void setCount(Personnel& list, const std::string& person, std::int32_t count) {
  const auto found = std::ranges::find(list, person, &em5::OrderInfo::StartPersonnel::orderInfo);
  if (found != list.end() && found->count != 0)
    found->count = count;
  else
    list.push_back({person, count});
}

static void changeCrew(const ModifyVehicleStartPersonalEffect& effect, ScenarioHandler& handler, Personnel& list,
                       const std::string& person) {
  const std::int32_t count = truncateToInt(handler.ResolveFloat(effect.newNumber));
  try {
    setCount(list, person, count);
  } catch (const std::exception&) {
    list.push_back({person, count});
    logInfo("cant find OI");
  }
}

static void run(const ModifyVehicleStartPersonalEffect& effect, ScenarioHandler& handler) {
  em5::OrderInfo* vehicle = findOrderInfoForWriting(handler.ResolveString(effect.vehicleOrderInfo));
  if (!vehicle) return;
  const em5::OrderInfo* person = findOrderInfo(handler.ResolveString(effect.personOrderInfo));
  if (!person) return;
  changeCrew(effect, handler, vehicle->getStartPersonnelListForWriting(), person->getName());
  const float seats = handler.ResolveFloat(effect.numberOfSeats);
  if (seats != -1) vehicle->setPersonnelSpace(truncateToInt(seats));
}

EFFECT(ModifyVehicleStartPersonal, "Units", "Changes the crew that comes with a kind of vehicle, and its seats")

}
