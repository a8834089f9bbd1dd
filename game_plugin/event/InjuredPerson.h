#pragma once
#include "em5/freeplay/FreeplayEvent.h"
#include "qsf/base/StringHash.h"
#include "qsf/map/Entity.h"

namespace script {

/// Puts a person of the default pool into a road vehicle, injured by the event; the vehicle brakes and has to be cut
/// open. Returns the vehicle, null (and nothing happens) for what is no road vehicle.
qsf::Entity* placeInjuredPersonInVehicle(qsf::Entity& vehicle, em5::FreeplayEvent& event, qsf::StringHash injury);

}
