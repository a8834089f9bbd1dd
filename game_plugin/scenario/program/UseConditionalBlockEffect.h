#pragma once
#include "game_plugin/scenario/program/CatalogueEntry.h"

namespace script {

/// What the loader makes for an `If`: which block of which trigger is run where the `If` stood.
struct UseConditionalBlockEffect : DefaultEffect {
  std::int32_t triggerIndex = 0;
  std::int32_t blockIndex = 0;
};

}
