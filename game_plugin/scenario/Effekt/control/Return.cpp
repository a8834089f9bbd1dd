#include "game_plugin/scenario/language/ParameterReaders.h"

namespace script {

struct ReturnEffect : DefaultEffect {};

static void read(ReturnEffect& /*effect*/, const Tokens& /*tokens*/) {}

EFFECT_OF_KIND(Return, "ScriptControl", "Ends the effects of this trigger; the ones behind it are not run", Return)

}
