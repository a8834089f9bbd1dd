#pragma once
#include "qsf/base/StringHash.h"

/// The injuries that a person can have, by the hash of their name.
namespace em5::injury {

inline constexpr qsf::StringHash DUMMY_INJURY{"DUMMY_INJURY"};
inline constexpr qsf::StringHash BURN_3_GRADE{"BURN_3_GRADE"};
inline constexpr qsf::StringHash BURN_4_GRADE{"BURN_4_GRADE"};
inline constexpr qsf::StringHash BURN_OF_BREATH{"BURN_OF_BREATH"};
inline constexpr qsf::StringHash SMOKE_POISONING{"SMOKE_POISONING"};
inline constexpr qsf::StringHash BROKEN_ARM{"BROKEN_ARM"};
inline constexpr qsf::StringHash BROKEN_LEG{"BROKEN_LEG"};
inline constexpr qsf::StringHash BROKEN_SKULL{"BROKEN_SKULL"};
inline constexpr qsf::StringHash BRAIN_BLEEDING{"BRAIN_BLEEDING"};
inline constexpr qsf::StringHash INNER_BLEEDING{"INNER_BLEEDING"};
inline constexpr qsf::StringHash LOST_ARM{"LOST_ARM"};
inline constexpr qsf::StringHash LOST_LEG{"LOST_LEG"};
inline constexpr qsf::StringHash WHIPLASH{"WHIPLASH"};
inline constexpr qsf::StringHash GUN_SHOT_WOUND_LUNG{"GUN_SHOT_WOUND_LUNG"};
inline constexpr qsf::StringHash GUN_SHOT_WOUND_BODY{"GUN_SHOT_WOUND_BODY"};
inline constexpr qsf::StringHash GUN_SHOT_WOUND_BODY_HARD{"GUN_SHOT_WOUND_BODY_HARD"};
inline constexpr qsf::StringHash STAB_WOUND_LUNG{"STAB_WOUND_LUNG"};
inline constexpr qsf::StringHash STAB_WOUND_BODY{"STAB_WOUND_BODY"};
inline constexpr qsf::StringHash STAB_WOUND_BODY_INNER_BLEEDING{"STAB_WOUND_BODY_INNER_BLEEDING"};
inline constexpr qsf::StringHash BITE_WOUND{"BITE_WOUND"};
inline constexpr qsf::StringHash BITE_WOUND_BLEEDING{"BITE_WOUND_BLEEDING"};
/// Also what a person gets that is injured without anyone saying how.
inline constexpr qsf::StringHash HEAD_BODY_LACERATION{"HEAD_BODY_LACERATION"};
inline constexpr qsf::StringHash ELECTRIC_SHOCK{"ELECTRIC_SHOCK"};
inline constexpr qsf::StringHash SHOCK{"SHOCK"};
inline constexpr qsf::StringHash WEAKNESS{"WEAKNESS"};
inline constexpr qsf::StringHash WATER_FILLED_LUNG{"WATER_FILLED_LUNG"};
inline constexpr qsf::StringHash HEARTATTACK{"HEARTATTACK"};
inline constexpr qsf::StringHash STROKE{"STROKE"};
inline constexpr qsf::StringHash CIRCULATORYCOLLAPSE{"CIRCULATORYCOLLAPSE"};
inline constexpr qsf::StringHash FOOD_POISONING{"FOOD_POISONING"};
inline constexpr qsf::StringHash ALCOHOL_POISONING{"ALCOHOL_POISONING"};
inline constexpr qsf::StringHash LOW_BLOOD_PRESSURE{"LOW_BLOOD_PRESSURE"};
inline constexpr qsf::StringHash ANGINA_PECTORIS{"ANGINA_PECTORIS"};
inline constexpr qsf::StringHash SHORTAGE_OF_BREATH{"SHORTAGE_OF_BREATH"};
inline constexpr qsf::StringHash COLLAPSED_LUNG{"COLLAPSED_LUNG"};
inline constexpr qsf::StringHash HYPOTHERMIA{"HYPOTHERMIA"};
inline constexpr qsf::StringHash AVIAN_INFLUENZA{"AVIAN_INFLUENZA"};
inline constexpr qsf::StringHash AVIAN_INFLUENZA_INJURED{"AVIAN_INFLUENZA_INJURED"};
inline constexpr qsf::StringHash SWINE_INFLUENZA{"SWINE_INFLUENZA"};
inline constexpr qsf::StringHash SWINE_INFLUENZA_INJURED{"SWINE_INFLUENZA_INJURED"};
inline constexpr qsf::StringHash HARD_ASTHMA{"HARD_ASTHMA"};
inline constexpr qsf::StringHash HARD_ASTHMA_INJURED{"HARD_ASTHMA_INJURED"};
inline constexpr qsf::StringHash HYDROPHOBIA{"HYDROPHOBIA"};
inline constexpr qsf::StringHash HYDROPHOBIA_INJURED{"HYDROPHOBIA_INJURED"};
inline constexpr qsf::StringHash CHEMICAL_CONTAMINATION{"CHEMICAL_CONTAMINATION"};
inline constexpr qsf::StringHash CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH{"CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH"};
inline constexpr qsf::StringHash CHEMICAL_CONTAMINATION_BREATH_BURN{"CHEMICAL_CONTAMINATION_BREATH_BURN"};
inline constexpr qsf::StringHash RADIOACTIVE_CONTAMINATION{"RADIOACTIVE_CONTAMINATION"};
inline constexpr qsf::StringHash RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING{"RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING"};
inline constexpr qsf::StringHash RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE{"RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE"};
inline constexpr qsf::StringHash PLAGUE_CONTAMINATION{"PLAGUE_CONTAMINATION"};
inline constexpr qsf::StringHash PLAGUE_CONTAMINATION_TEST_POSITIV{"PLAGUE_CONTAMINATION_TEST_POSITIV"};
inline constexpr qsf::StringHash PLAGUE_CONTAMINATION_TEST_NEGATIV{"PLAGUE_CONTAMINATION_TEST_NEGATIV"};
inline constexpr qsf::StringHash DROWNING_NORMAL{"DROWNING_NORMAL"};

}
