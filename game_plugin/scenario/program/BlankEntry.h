#pragma once
#include "game_plugin/scenario/program/CatalogueEntry.h"

#include <string>

namespace script {

/// For those who test tests: one entry of the catalogue does nothing while it is chosen, an effect, or gives a fixed
/// answer, a condition. Holds for lines that are read from now on. One per process.
class BlankEntry {
public:
  /// An empty name ends it.
  static void choose(const std::string& name, bool answer);

  /// The entry itself, or what stands for it. Null stays null.
  static const ConditionEntry* replace(const ConditionEntry* entry);
  static const EffectEntry* replace(const EffectEntry* entry);
};

}
