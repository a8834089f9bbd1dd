#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/base/Random.h"

namespace script {

struct SetVariableRandomEffect : DefaultEffect {
  Argument minimum;
  Argument maximum;
  Argument variable;
  bool round = true;
};

static void read(SetVariableRandomEffect& effect, ParameterReader& in) {
  effect.minimum = in.number(1, "0", "MinValue", "Lower bound, included");
  effect.maximum = in.number(2, "1", "MaxValue", "Upper bound, included if rounded");
  effect.variable = in.variableOut(3, "var", "Variable", "Name of the variable to set");
  effect.round = in.flag(4, true, "Round", "Draws whole numbers; the bounds lose their fraction");
}

static void run(const SetVariableRandomEffect& effect, ScenarioHandler& handler) {
  const float maximum = handler.ResolveFloat(effect.maximum);
  const float minimum = handler.ResolveFloat(effect.minimum);
  const float drawn =
      effect.round ? static_cast<float>(qsf::Random::getRandomInt(truncateToInt(minimum), truncateToInt(maximum)))
                   : qsf::Random::getRandomFloat(minimum, maximum);
  handler.SetFloatVariable(effect.variable, drawn);
}

EFFECT(SetVariableRandom, "Variables", "Sets a variable to a random number")

}
