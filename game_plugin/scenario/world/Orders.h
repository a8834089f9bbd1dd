#pragma once
#include "em5/game/Player.h"
#include "em5/order/OrderInfo.h"
#include "qsf/map/Entity.h"

#include <string>

namespace script {

// What players order, in the game in progress. Without a game, in the editor, nothing is found.

/// Null if there is none of that name.
const em5::OrderInfo* findOrderInfo(const std::string& name);
em5::OrderInfo* findOrderInfoForWriting(const std::string& name);
/// Null if nobody has that index.
em5::Player* findPlayer(int index);
em5::Player* findLocalPlayer();

/// Makes the start personnel of a vehicle's order info, on the vehicle's map, as units of the player, and lets them get
/// in. A person without an order info or a prefab is left out, and of each
/// kind those behind the thousandth are.
void spawnCrew(qsf::Entity& vehicle, const em5::OrderInfo& orderInfo, const em5::Player& player);
/// Shows the unit on the small map, with the icon of its order info.
void registerMinimapIcon(const qsf::Entity& unit, const em5::OrderInfo& orderInfo);

}
