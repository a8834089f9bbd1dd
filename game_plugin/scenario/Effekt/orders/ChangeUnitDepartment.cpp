#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Orders.h"

namespace script {

struct ChangeUnitDepartmentEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "An unknown department, also one with a capital, is none.",
  };

  Argument orderName;
  Argument department;
};

static constexpr Word<int> DEPARTMENTS[] = {
    {"fire", em5::OrderInfo::FIRE},
    {"ambulance", em5::OrderInfo::AMBULANCE},
    {"police", em5::OrderInfo::POLICE},
    {"tech", em5::OrderInfo::TECH},
};

static void read(ChangeUnitDepartmentEffect& effect, ParameterReader& in) {
  effect.orderName = in.of(ParameterRole::ORDER_INFO, 1, "no_list", "Ordername", "Kind of unit");
  effect.department = in.words(2, "fire", "Department", "Department that it belongs to", wordsOf<DEPARTMENTS>());
}

static void run(const ChangeUnitDepartmentEffect& effect, ScenarioHandler& handler) {
  if (em5::OrderInfo* orderInfo = findOrderInfoForWriting(handler.ResolveString(effect.orderName)))
    orderInfo->setDepartment(lookUp(DEPARTMENTS, effect.department.text()).value_or(em5::OrderInfo::NO_DEPARTMENT));
}

EFFECT(ChangeUnitDepartment, "Units", "Gives a kind of unit to another department")

}
