#pragma once
#include "game_plugin/scenario/program/CatalogueEntry.h"

#include <span>
#include <string_view>

namespace script {

/// A group of the catalogue: a chain of entries, asked in its order. Constant data; the groups' manifests stand in
/// sources of their names.
template <class Entry> struct EntryGroup {
  std::string_view name;
  std::span<const Entry* const> chain;
};
using ConditionGroup = EntryGroup<ConditionEntry>;
using EffectGroup = EntryGroup<EffectEntry>;

}

/// Makes the constant GROUP, whose MANIFEST names its entries in the order in which they are asked.
#define DECLARE_CONDITION_ENTRY(NAME) extern const ConditionEntry NAME##ConditionEntry;
#define CONDITION_ENTRY_ADDRESS(NAME) &NAME##ConditionEntry,
#define CONDITION_GROUP(GROUP, MANIFEST)                                                                               \
  MANIFEST(DECLARE_CONDITION_ENTRY)                                                                                    \
  static constexpr const ConditionEntry* GROUP##Chain[] = {MANIFEST(CONDITION_ENTRY_ADDRESS)};                         \
  constinit const ConditionGroup GROUP{#GROUP, GROUP##Chain};

#define DECLARE_EFFECT_ENTRY(NAME) extern const EffectEntry NAME##EffectEntry;
#define EFFECT_ENTRY_ADDRESS(NAME) &NAME##EffectEntry,
#define EFFECT_GROUP(GROUP, MANIFEST)                                                                                  \
  MANIFEST(DECLARE_EFFECT_ENTRY)                                                                                       \
  static constexpr const EffectEntry* GROUP##Chain[] = {MANIFEST(EFFECT_ENTRY_ADDRESS)};                               \
  constinit const EffectGroup GROUP{#GROUP, GROUP##Chain};

/// A group whose entries are yet to come: it knows no name.
#define EMPTY_CONDITION_GROUP(GROUP) constinit const ConditionGroup GROUP{#GROUP, {}};
#define EMPTY_EFFECT_GROUP(GROUP) constinit const EffectGroup GROUP{#GROUP, {}};
