// What a tick of many active triggers costs, beside a loop that a C++ programmer would write for the same work: plain
// structs, operators decoded, variables as indices. Each trigger has its own variable.
//
//   idle    CompareValues("v_i","==","1") is false, a second condition stands behind it
//   firing  CompareValues("v_i",">=","0") holds, VariableModify("v_i","+","1","v_i") runs, in each tick
#include "bench/support/Benchmarks.h"
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/job/JobArguments.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iterator>
#include <memory>

namespace {

using tidemark::bench::Results;
using tidemark::bench::Table;

enum class Load { IDLE, FIRING };

const qsf::Time TICK = qsf::Time::fromMilliseconds(50);

std::string makeScript(Load load, std::int64_t triggers) {
  std::string text;
  for (std::int64_t i = 0; i < triggers; ++i) {
    fmt::format_to(std::back_inserter(text), "InitNewTrigger(\"T_{0}\",true,true);\nInitConditions();\n", i);
    if (load == Load::IDLE)
      fmt::format_to(std::back_inserter(text),
                     "CompareValues(\"v_{0}\",\"==\",\"1\");\nCompareValues(\"v_{0}\",\"<=\",\"9\");\n", i);
    else
      fmt::format_to(std::back_inserter(text), "CompareValues(\"v_{0}\",\">=\",\"0\");\n", i);
    fmt::format_to(std::back_inserter(text), "InitEffects();\nVariableModify(\"v_{0}\",\"+\",\"1\",\"v_{0}\");\n", i);
  }
  return text;
}

/// A script of so many triggers, started on a host without a map.
class Script {
public:
  Script(Load load, std::int64_t triggers)
      : mDocument(std::make_shared<script::ScriptDocument>(
            script::ScriptParser().parseText(makeScript(load, triggers), "bench", "bench/tick"))),
        mHandler(std::make_shared<script::GlobalStores>()) {
    mHandler.SetDocument(mDocument);
    mHandler.Start(script::StartKind::REALTIME);
  }

  void tick(qsf::Time passed) { mHandler.Update(qsf::JobArguments(passed)); }
  std::size_t triggers() const { return mDocument->triggers.size(); }
  std::uint64_t timesFired() const { return mDocument->triggers.back().timesFired; }

private:
  std::shared_ptr<script::ScriptDocument> mDocument;
  script::ScenarioHandler mHandler;
};

// The floor.

enum class Operator : unsigned char { LESS, LESS_OR_EQUAL, EQUAL, NOT_EQUAL, GREATER_OR_EQUAL, GREATER };
enum class Arithmetic : unsigned char { ADD, SUBTRACT, MULTIPLY, DIVIDE };

struct PlainCondition {
  std::uint32_t variable;
  float value;
  Operator op;
};

struct PlainEffect {
  std::uint32_t variable;
  float value;
  std::uint32_t result;
  Arithmetic op;
  bool round;
};

struct PlainTrigger {
  bool active = true;
  bool looped = true;
  std::uint32_t fulfilled = 0;
  std::uint32_t required = 0;
  qsf::Time lastTimeActive;
  std::uint64_t timesFired = 0;
  std::vector<PlainCondition> conditions;
  std::vector<PlainEffect> effects;
};

bool compare(float a, float b, Operator op) {
  switch (op) {
  case Operator::LESS:
    return a < b;
  case Operator::LESS_OR_EQUAL:
    return a <= b;
  case Operator::EQUAL:
    return a == b;
  case Operator::NOT_EQUAL:
    return a != b;
  case Operator::GREATER_OR_EQUAL:
    return a >= b;
  case Operator::GREATER:
    return a > b;
  }
  return false;
}

float compute(float a, float b, Arithmetic op) {
  switch (op) {
  case Arithmetic::ADD:
    return a + b;
  case Arithmetic::SUBTRACT:
    return a - b;
  case Arithmetic::MULTIPLY:
    return a * b;
  case Arithmetic::DIVIDE:
    return a / b;
  }
  return 0;
}

struct PlainScript {
  std::vector<PlainTrigger> triggers;
  std::vector<float> variables;
  qsf::Time time;

  PlainScript(Load load, std::uint32_t count) : triggers(count), variables(count) {
    for (std::uint32_t i = 0; i < count; ++i) {
      PlainTrigger& trigger = triggers[i];
      if (load == Load::IDLE)
        trigger.conditions = {{i, 1, Operator::EQUAL}, {i, 9, Operator::LESS_OR_EQUAL}};
      else
        trigger.conditions = {{i, 0, Operator::GREATER_OR_EQUAL}};
      trigger.required = static_cast<std::uint32_t>(trigger.conditions.size());
      trigger.effects = {{i, 1, i, Arithmetic::ADD, true}};
    }
  }

  void tick(qsf::Time passed) {
    time += passed;
    for (PlainTrigger& trigger : triggers)
      if (trigger.active) tick(trigger);
  }

  void tick(PlainTrigger& trigger) {
    std::uint32_t held = 0;
    std::uint32_t failed = 0;
    const auto all = static_cast<std::uint32_t>(trigger.conditions.size());
    for (const PlainCondition& condition : trigger.conditions) {
      if (all - failed < trigger.required) break;
      if (compare(variables[condition.variable], condition.value, condition.op))
        ++held;
      else
        ++failed;
    }
    trigger.fulfilled = held;
    if (held < trigger.required) return;
    trigger.lastTimeActive = time;
    trigger.active = trigger.looped;
    ++trigger.timesFired;
    for (const PlainEffect& effect : trigger.effects) {
      const float value = compute(variables[effect.variable], effect.value, effect.op);
      variables[effect.result] = effect.round ? std::round(value) : value;
    }
  }
};

// A block is some milliseconds on either side: long beside what the other side left in the caches, short beside the
// spells in which a virtual machine runs at another speed. So both blocks of a pair see the same machine.
constexpr std::int64_t TRIGGERS_PER_BLOCK = 400'000;
constexpr int PAIRS = 41;

/// Nanoseconds of processor time for one trigger in a block of ticks.
template <typename SIDE> double measureBlock(SIDE& side, std::int64_t triggers) {
  const std::int64_t ticks = TRIGGERS_PER_BLOCK / triggers;
  const std::clock_t start = std::clock();
  for (std::int64_t i = 0; i < ticks; ++i) {
    side.tick(TICK);
    benchmark::ClobberMemory();
  }
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC * 1e9 / static_cast<double>(TRIGGERS_PER_BLOCK);
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Both sides by turns; the counters hold the medians of the blocks, and of the ratios of the pairs.
template <Load LOAD> void bothSides(benchmark::State& state) {
  const std::int64_t triggers = state.range(0);
  Script script(LOAD, triggers);
  PlainScript plain(LOAD, static_cast<std::uint32_t>(triggers));
  script.tick(TICK);
  plain.tick(TICK);
  std::vector<double> ofScript;
  std::vector<double> ofLoop;
  std::vector<double> ratios;
  for (auto _ : state) {
    ofScript.push_back(measureBlock(script, triggers));
    ofLoop.push_back(measureBlock(plain, triggers));
    ratios.push_back(ofScript.back() / ofLoop.back());
  }
  const std::uint64_t ticks = 1 + ratios.size() * static_cast<std::uint64_t>(TRIGGERS_PER_BLOCK / triggers);
  const std::uint64_t expected = LOAD == Load::FIRING ? ticks : 0;
  if (script.triggers() != static_cast<std::size_t>(triggers) || script.timesFired() != expected ||
      plain.triggers.back().timesFired != expected) {
    state.SkipWithError("the triggers did not do what is measured");
    return;
  }
  state.counters["script"] = median(ofScript);
  state.counters["loop"] = median(ofLoop);
  state.counters["ratio"] = median(ratios);
}

constexpr std::int64_t COUNTS[] = {1'000, 10'000, 100'000};

void registerAll() {
  const auto add = [](const char* name, void (*function)(benchmark::State&)) {
    auto* registered = benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    registered->Iterations(PAIRS)->Repetitions(1);
    for (const std::int64_t count : COUNTS)
      registered->Arg(count);
  };
  add("idle", &bothSides<Load::IDLE>);
  add("firing", &bothSides<Load::FIRING>);
}

Table makeTable(const Results& results) {
  using tidemark::bench::grouped;
  using tidemark::bench::oneDigit;
  Table table({"active triggers", "script, ns per trigger", "plain loop, ns per trigger", "ratio"});
  for (const char* load : {"idle", "firing"}) {
    for (const std::int64_t count : COUNTS) {
      const std::string name = fmt::format("{}/{}", load, count);
      table.add({fmt::format("{}, {}", load, grouped(static_cast<double>(count))),
                 oneDigit(results.counter(name, "script")), oneDigit(results.counter(name, "loop")),
                 oneDigit(results.counter(name, "ratio"))});
    }
  }
  return table;
}

}

int main(int argc, char** argv) {
  registerAll();
  return tidemark::bench::runAndPrint(argc, argv, &makeTable);
}
