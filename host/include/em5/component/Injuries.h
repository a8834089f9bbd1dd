#pragma once
#include "qsf/base/StringHash.h"

/// The injuries that a person can have, by name. An id is the hash of the name.
namespace em5::injury {

inline constexpr qsf::StringHash DUMMY_INJURY{"DUMMY_INJURY"};
inline constexpr qsf::StringHash BURN_3_GRADE{"BURN_3_GRADE"};
inline constexpr qsf::StringHash BURN_4_GRADE{"BURN_4_GRADE"};
inline constexpr qsf::StringHash BROKEN_LEG{"BROKEN_LEG"};
inline constexpr qsf::StringHash SMOKE_POISONING{"SMOKE_POISONING"};
inline constexpr qsf::StringHash WATER_FILLED_LUNG{"WATER_FILLED_LUNG"};
/// What a person gets that is injured without anyone saying how.
inline constexpr qsf::StringHash HEAD_BODY_LACERATION{"HEAD_BODY_LACERATION"};

}
