#include "game_plugin/scenario/program/Records.h"

#include "game_plugin/scenario/program/CatalogueEntry.h"

namespace script {

constinit const ConditionEntry DEFAULT_CONDITION_ENTRY{"DefaultCondition", "", "", nullptr, nullptr, nullptr, {}};
constinit const EffectEntry DEFAULT_EFFECT_ENTRY{"DefaultEffect", "", "", nullptr, nullptr, nullptr, {}};

std::string_view DefaultCondition::name() const { return entry->name; }
std::string_view DefaultCondition::category() const { return entry->category; }
std::string_view DefaultCondition::description() const { return entry->description; }

std::string_view DefaultEffect::name() const { return entry->name; }
std::string_view DefaultEffect::category() const { return entry->category; }
std::string_view DefaultEffect::description() const { return entry->description; }

}
