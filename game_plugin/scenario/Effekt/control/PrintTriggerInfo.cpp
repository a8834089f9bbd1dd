#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

struct PrintTriggerInfoEffect : DefaultEffect {};

static void read(PrintTriggerInfoEffect& /*effect*/, ParameterReader& /*in*/) {}

EFFECT_OF_KIND(PrintTriggerInfo, "TidemarkScripts",
               "Logs the local name, the global name and the hash of the trigger that runs it", PRINT_TRIGGER_INFO)

}
