#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <cmath>

namespace script {

struct VariableModifyEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Any operation but -, * and : adds; a slash adds, too.",
  };

  // First, where the base leaves bytes free: there are thousands of these records.
  ArithmeticOperator operation = ArithmeticOperator::ADD;
  bool round = true;
  Argument value1;
  Argument value2;
  Argument result;
};

static void read(VariableModifyEffect& effect, ParameterReader& in) {
  effect.value1 = in.number(1, "0", "Value1", "Number, or name of a variable");
  effect.operation = ToArithmeticOperator(in.words(2, "+", "Operation", "(+, -, *, :)", arithmeticWords()));
  effect.value2 = in.number(3, "0", "Value2", "Number, or name of a variable");
  effect.result = in.variableOut(4, "var", "Result", "Name of the variable that gets the result");
  effect.round = in.flag(5, true, "Round", "Rounds the result to the nearest whole number");
}

static float calculate(ArithmeticOperator operation, float value1, float value2) {
  switch (operation) {
  case ArithmeticOperator::SUBTRACT:
    return value1 - value2;
  case ArithmeticOperator::MULTIPLY:
    return value1 * value2;
  case ArithmeticOperator::DIVIDE:
    return value1 / value2; // by zero as floats do it: infinite, or not a number
  case ArithmeticOperator::ADD:
    break;
  }
  return value1 + value2;
}

static void run(const VariableModifyEffect& effect, ScenarioHandler& handler) {
  const float value1 = handler.ResolveFloat(effect.value1);
  const float value2 = handler.ResolveFloat(effect.value2);
  const float result = calculate(effect.operation, value1, value2);
  handler.SetFloatVariable(effect.result, effect.round ? std::round(result) : result); // halves away from zero
}

EFFECT(VariableModify, "Variables", "Calculates with two values. Division is written with a colon")

}
