#pragma once
#include "game_plugin/tooling/Catalogue.h"

#include <string>
#include <vector>

namespace tidemark::catalogue {

using Entry = script::tooling::CatalogueEntry;
using Parameter = script::tooling::CatalogueParameter;
using Entries = std::vector<Entry>;

/// The line of a script that uses the entry with all its defaults: `SetVariable("var","0");`
std::string toLine(const Entry& entry);
/// One line for each entry: its name, and the line of a script that uses it.
std::string toList(const Entries& entries);
/// All of each entry, as a person likes to read it.
std::string toText(const Entries& entries);
/// An array of objects with the members kind, name, group, category, description, oddities and parameters.
std::string toJson(const Entries& entries);

}
