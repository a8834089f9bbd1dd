#pragma once
#include "game_plugin/scenario/records/CatalogueEntry.h"

#include <span>

namespace script {

/// Base of the condition groups: a chain of entries, asked in its order. Groups belong to a ScenarioConditions; the
/// handler is null at load time, when only the factory is used.
class ConditionGroup {
public:
  using Chain = std::span<const ConditionEntry* const>;

  ConditionGroup(ScenarioHandler* handler, Chain chain) : mHandler(handler), mChain(chain) {}
  virtual ~ConditionGroup() = default;

  Chain chain() const { return mChain; }
  /// A new record, or null if the name is not in this group.
  DefaultCondition* create(const Tokens& tokens) const;
  /// 0 the condition failed, 1 it held, 2 the entry is not in this group.
  int evaluate(const Evaluation& evaluation, const DefaultCondition& record) const;

private:
  ScenarioHandler* mHandler;
  Chain mChain;
};

/// Base of the effect groups.
class EffectGroup {
public:
  using Chain = std::span<const EffectEntry* const>;

  EffectGroup(ScenarioHandler* handler, Chain chain) : mHandler(handler), mChain(chain) {}
  virtual ~EffectGroup() = default;

  Chain chain() const { return mChain; }
  DefaultEffect* create(const Tokens& tokens) const;
  /// True if the name was of this group; then the effect has run.
  bool execute(const DefaultEffect& record, std::uint32_t triggerHash) const;

private:
  ScenarioHandler* mHandler;
  Chain mChain;
};

}

/// Declares a group class; its manifest stands in its source, in CONDITION_GROUP_CHAIN or EFFECT_GROUP_CHAIN.
#define CONDITION_GROUP(NAME)                                                                                          \
  class NAME : public ConditionGroup {                                                                                 \
  public:                                                                                                              \
    explicit NAME(ScenarioHandler* handler);                                                                           \
  };
#define EFFECT_GROUP(NAME)                                                                                             \
  class NAME : public EffectGroup {                                                                                    \
  public:                                                                                                              \
    explicit NAME(ScenarioHandler* handler);                                                                           \
  };

#define DECLARE_CONDITION_ENTRY(NAME) extern const ConditionEntry NAME##ConditionEntry;
#define CONDITION_ENTRY_ADDRESS(NAME) &NAME##ConditionEntry,
#define CONDITION_GROUP_CHAIN(GROUP, MANIFEST)                                                                         \
  MANIFEST(DECLARE_CONDITION_ENTRY)                                                                                    \
  static constexpr const ConditionEntry* GROUP##Chain[] = {MANIFEST(CONDITION_ENTRY_ADDRESS)};                         \
  GROUP::GROUP(ScenarioHandler* handler) : ConditionGroup(handler, GROUP##Chain) {}

#define DECLARE_EFFECT_ENTRY(NAME) extern const EffectEntry NAME##EffectEntry;
#define EFFECT_ENTRY_ADDRESS(NAME) &NAME##EffectEntry,
#define EFFECT_GROUP_CHAIN(GROUP, MANIFEST)                                                                            \
  MANIFEST(DECLARE_EFFECT_ENTRY)                                                                                       \
  static constexpr const EffectEntry* GROUP##Chain[] = {MANIFEST(EFFECT_ENTRY_ADDRESS)};                               \
  GROUP::GROUP(ScenarioHandler* handler) : EffectGroup(handler, GROUP##Chain) {}

/// A group whose entries are yet to come: it knows no name.
#define EMPTY_CONDITION_GROUP(GROUP)                                                                                   \
  GROUP::GROUP(ScenarioHandler* handler) : ConditionGroup(handler, Chain()) {}
#define EMPTY_EFFECT_GROUP(GROUP)                                                                                      \
  GROUP::GROUP(ScenarioHandler* handler) : EffectGroup(handler, Chain()) {}
