#include "game_plugin/tooling/Catalogue.h"

#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script::tooling {

namespace {

CatalogueParameter toParameter(const ParameterDocumentation& documentation) {
  CatalogueParameter parameter;
  parameter.index = documentation.index;
  parameter.type = documentation.type;
  parameter.name = documentation.name;
  parameter.defaultValue = documentation.defaultValue;
  parameter.description = documentation.description;
  parameter.role = nameOf(documentation.role);
  parameter.componentIndex = documentation.componentIndex;
  parameter.words.assign(documentation.words.begin(), documentation.words.end());
  return parameter;
}

template <class Entry> CatalogueEntry toEntry(const Entry& entry, CatalogueEntry::Kind kind, std::string_view group) {
  CatalogueEntry view;
  view.kind = kind;
  view.name = entry.name;
  view.group = group;
  view.category = entry.category;
  view.description = entry.description;
  view.oddities.assign(entry.oddities.begin(), entry.oddities.end());
  ParameterReader::Documentation parameters;
  ParameterReader in(parameters);
  entry.describe(in);
  for (const ParameterDocumentation& parameter : parameters)
    view.parameters.push_back(toParameter(parameter));
  return view;
}

}

std::vector<CatalogueEntry> describeCatalogue() {
  std::vector<CatalogueEntry> catalogue;
  for (const ConditionGroup* group : ScenarioConditions::groups())
    for (const ConditionEntry* entry : group->chain)
      catalogue.push_back(toEntry(*entry, CatalogueEntry::Kind::CONDITION, group->name));
  for (const EffectGroup* group : ScenarioEffects::groups())
    for (const EffectEntry* entry : group->chain)
      catalogue.push_back(toEntry(*entry, CatalogueEntry::Kind::EFFECT, group->name));
  return catalogue;
}

}
