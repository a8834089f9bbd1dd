#pragma once
#include "game_plugin/scenario/program/CatalogueEntry.h"

#include <string_view>
#include <unordered_map>

namespace script {

/// Name to entry, over all groups of a registry. Gives what asking the chains in order gives: the first entry of a
/// name.
template <class Entry> class EntryIndex {
public:
  template <class Chain> void add(const Chain& chain) {
    for (const Entry* entry : chain)
      mEntries.try_emplace(entry->name, entry);
  }
  const Entry* find(std::string_view name) const {
    const auto found = mEntries.find(name);
    return found == mEntries.end() ? nullptr : found->second;
  }

private:
  std::unordered_map<std::string_view, const Entry*> mEntries;
};

}
