#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/program/UseConditionalBlockEffect.h"

namespace script {

static void read(UseConditionalBlockEffect& effect, ParameterReader& in) {
  effect.triggerIndex = in.integer(1, 0, "", "");
  effect.blockIndex = in.integer(2, 0, "", "");
}

EFFECT_OF_KIND(UseConditionalBlock, "", "", USE_CONDITIONAL_BLOCK)

}
