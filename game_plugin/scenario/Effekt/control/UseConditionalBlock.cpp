#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/records/UseConditionalBlockEffect.h"

namespace script {

static void read(UseConditionalBlockEffect& effect, const Tokens& tokens) {
  effect.triggerIndex = readIntParameter(tokens, 1, 0, "", "");
  effect.blockIndex = readIntParameter(tokens, 2, 0, "", "");
}

EFFECT_OF_KIND(UseConditionalBlock, "", "", UseConditionalBlock)

}
