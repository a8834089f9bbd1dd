#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

struct ReturnEffect : DefaultEffect {};

static void read(ReturnEffect& /*effect*/, ParameterReader& /*in*/) {}

EFFECT_OF_KIND(Return, "ScriptControl", "Ends the effects of this trigger; the ones behind it are not run", RETURN)

}
