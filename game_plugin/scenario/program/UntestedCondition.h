#pragma once
#include "game_plugin/scenario/program/CatalogueEntry.h"

/// Closes the file of a condition that scripts can write and no executor knows: it counts as passed wherever it is
/// asked, also with `!`. Its file has no `test`.
#define CONDITION_WITHOUT_TEST(NAME, CATEGORY, DESCRIPTION)                                                            \
  extern const ConditionEntry NAME##ConditionEntry;                                                                    \
  constinit const ConditionEntry NAME##ConditionEntry{                                                                 \
      #NAME,                                                                                                           \
      CATEGORY,                                                                                                        \
      DESCRIPTION,                                                                                                     \
      &detail::createRecord<DefaultCondition, NAME##Condition, ConditionEntry>,                                        \
      &detail::describeRecord<NAME##Condition>,                                                                        \
      nullptr,                                                                                                         \
      detail::odditiesOf<NAME##Condition>()};
