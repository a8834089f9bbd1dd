#pragma once
#include "qsf/base/StringHash.h"

/// The game's messages: MESSAGE(NAME). A line here is all that a message needs to be known to the log and to tools.
///
/// - APPLICATION_STARTUP_FINISHED: the plug-ins stand; no game has run yet.
/// - GAME_STARTUP_FINISHED: the map of a game runs.
/// - GAME_SHUTDOWN_STARTING: the game ends; everything is still there.
/// - EM5_PRE_COMMAND_EXECUTE: filter 1 command id, filter 2 caller, filter 3 target; parameter "context" a
///   `const em5::CommandContext*`. A response of RESPONSE_BLOCK forbids the command.
/// - EM5_CHANGE_SELECTION: the player's selection, or what is shown of it, is another.
/// - EM5_SPAWN_ENTITY: filter 1 an entity that has come to be in a running game; the map's own ones are not told.
/// - EM5_SPAWN_UNIT: filter 1 a player's new unit, filter 2 where it came from, filter 3 what its maker says of it.
/// - EM5_ACTION_CAR_PICKED_UP_BY_TOWCAR: filter 1 a vehicle that was towed away.
/// - EM5_ACTION_ENTER_VEHICLE: filter 1 a person, filter 2 the vehicle that it is in now.
/// - EM5_ACTION_GET_EQUIPMENT: filter 1 a person, filter 2 the equipment that it holds now.
/// - EM5_ACTION_SPEAK_TO_PERSON: filter 1 and parameter "PolicemanId" who has spoken, filter 2 and parameter "PersonId"
///   to whom; both parameters are std::uint64_t.
/// - EM5_ACTION_LOAD_PERSON_ON_DLK: filter 1 a person that the ladder vehicle has fetched.
/// - EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON: filter 1 a person that has jumped.
/// - EM5_ACTION_REPAIRED_OR_USED: filter 1 what an engineer has repaired or used.
/// - EM5_ACTION_FIND_ENTITY_FROM_DIVINGSPOT: filter 1 a diving spot, filter 2 what a diver has found there.
#define EM5_MESSAGES(MESSAGE)                                                                                          \
  MESSAGE(APPLICATION_STARTUP_FINISHED)                                                                                \
  MESSAGE(GAME_STARTUP_FINISHED)                                                                                       \
  MESSAGE(GAME_SHUTDOWN_STARTING)                                                                                      \
  MESSAGE(EM5_PRE_COMMAND_EXECUTE)                                                                                     \
  MESSAGE(EM5_CHANGE_SELECTION)                                                                                        \
  MESSAGE(EM5_SPAWN_ENTITY)                                                                                            \
  MESSAGE(EM5_SPAWN_UNIT)                                                                                              \
  MESSAGE(EM5_ACTION_CAR_PICKED_UP_BY_TOWCAR)                                                                          \
  MESSAGE(EM5_ACTION_ENTER_VEHICLE)                                                                                    \
  MESSAGE(EM5_ACTION_GET_EQUIPMENT)                                                                                    \
  MESSAGE(EM5_ACTION_SPEAK_TO_PERSON)                                                                                  \
  MESSAGE(EM5_ACTION_LOAD_PERSON_ON_DLK)                                                                               \
  MESSAGE(EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON)                                                                         \
  MESSAGE(EM5_ACTION_REPAIRED_OR_USED)                                                                                 \
  MESSAGE(EM5_ACTION_FIND_ENTITY_FROM_DIVINGSPOT)

namespace em5 {

/// Ids of the messages; each is the hash of its name as it is spelled, `em5::Messages::EM5_CHANGE_SELECTION`.
struct QSF_API Messages {
#define EM5_MESSAGE(NAME) static constexpr qsf::StringHash NAME{"em5::Messages::" #NAME};
  EM5_MESSAGES(EM5_MESSAGE)
#undef EM5_MESSAGE
};

}
