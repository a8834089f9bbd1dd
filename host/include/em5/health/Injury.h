#pragma once
#include "qsf/base/StringHash.h"

/// The injuries that a person can have: INJURY(NAME). A line here is all that an injury needs to be known by its name.
/// HEAD_BODY_LACERATION is also what a person gets that is injured without anyone saying how.
#define EM5_INJURIES(INJURY)                                                                                           \
  INJURY(DUMMY_INJURY)                                                                                                 \
  INJURY(BURN_3_GRADE)                                                                                                 \
  INJURY(BURN_4_GRADE)                                                                                                 \
  INJURY(BURN_OF_BREATH)                                                                                               \
  INJURY(SMOKE_POISONING)                                                                                              \
  INJURY(BROKEN_ARM)                                                                                                   \
  INJURY(BROKEN_LEG)                                                                                                   \
  INJURY(BROKEN_SKULL)                                                                                                 \
  INJURY(BRAIN_BLEEDING)                                                                                               \
  INJURY(INNER_BLEEDING)                                                                                               \
  INJURY(LOST_ARM)                                                                                                     \
  INJURY(LOST_LEG)                                                                                                     \
  INJURY(WHIPLASH)                                                                                                     \
  INJURY(GUN_SHOT_WOUND_LUNG)                                                                                          \
  INJURY(GUN_SHOT_WOUND_BODY)                                                                                          \
  INJURY(GUN_SHOT_WOUND_BODY_HARD)                                                                                     \
  INJURY(STAB_WOUND_LUNG)                                                                                              \
  INJURY(STAB_WOUND_BODY)                                                                                              \
  INJURY(STAB_WOUND_BODY_INNER_BLEEDING)                                                                               \
  INJURY(BITE_WOUND)                                                                                                   \
  INJURY(BITE_WOUND_BLEEDING)                                                                                          \
  INJURY(HEAD_BODY_LACERATION)                                                                                         \
  INJURY(ELECTRIC_SHOCK)                                                                                               \
  INJURY(SHOCK)                                                                                                        \
  INJURY(WEAKNESS)                                                                                                     \
  INJURY(WATER_FILLED_LUNG)                                                                                            \
  INJURY(HEARTATTACK)                                                                                                  \
  INJURY(STROKE)                                                                                                       \
  INJURY(CIRCULATORYCOLLAPSE)                                                                                          \
  INJURY(FOOD_POISONING)                                                                                               \
  INJURY(ALCOHOL_POISONING)                                                                                            \
  INJURY(LOW_BLOOD_PRESSURE)                                                                                           \
  INJURY(ANGINA_PECTORIS)                                                                                              \
  INJURY(SHORTAGE_OF_BREATH)                                                                                           \
  INJURY(COLLAPSED_LUNG)                                                                                               \
  INJURY(HYPOTHERMIA)                                                                                                  \
  INJURY(AVIAN_INFLUENZA)                                                                                              \
  INJURY(AVIAN_INFLUENZA_INJURED)                                                                                      \
  INJURY(SWINE_INFLUENZA)                                                                                              \
  INJURY(SWINE_INFLUENZA_INJURED)                                                                                      \
  INJURY(HARD_ASTHMA)                                                                                                  \
  INJURY(HARD_ASTHMA_INJURED)                                                                                          \
  INJURY(HYDROPHOBIA)                                                                                                  \
  INJURY(HYDROPHOBIA_INJURED)                                                                                          \
  INJURY(CHEMICAL_CONTAMINATION)                                                                                       \
  INJURY(CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH)                                                                    \
  INJURY(CHEMICAL_CONTAMINATION_BREATH_BURN)                                                                           \
  INJURY(RADIOACTIVE_CONTAMINATION)                                                                                    \
  INJURY(RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING)                                                                     \
  INJURY(RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE)                                                                      \
  INJURY(PLAGUE_CONTAMINATION)                                                                                         \
  INJURY(PLAGUE_CONTAMINATION_TEST_POSITIV)                                                                            \
  INJURY(PLAGUE_CONTAMINATION_TEST_NEGATIV)                                                                            \
  INJURY(DROWNING_NORMAL)

/// The injuries by the hash of their name.
namespace em5::injury {

#define EM5_INJURY(NAME) inline constexpr qsf::StringHash NAME{#NAME};
EM5_INJURIES(EM5_INJURY)
#undef EM5_INJURY

}
