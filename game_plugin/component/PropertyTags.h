#pragma once

namespace script {

/// Tag of properties that hold entity ids; its value says how the editor links them.
inline constexpr const char* SLOT_TAG = "Slot";
/// The linked entities belong to the one that lists them.
inline constexpr int HARD_LINK = 1;

}
