#pragma once
#include "qsf/component/Component.h"
#include <string>
#include <vector>

namespace em5 {

/// Makes its entity a player's unit. Properties "PlayerId", "OrderInfo" (name), "Commands" (ids).
class QSF_API CommandableComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::CommandableComponent"};
  explicit CommandableComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Index of the owning player, 0 for the host of a session and in single player.
  int getPlayerId() const { return mPlayerId; }
  void setPlayerId(int playerId) { mPlayerId = playerId; }

  /// Name of the order info that the unit was made from; empty without one.
  const std::string& getOrderInfo() const { return mOrderInfo; }
  void setOrderInfo(const std::string& name) { mOrderInfo = name; }

  /// Commands that the unit understands, in the order of their buttons. An id may be of no command.
  const std::vector<std::uint32_t>& getCommandIds() const { return mCommandIds; }
  std::vector<std::uint32_t>& getCommandIdsForWriting() { return mCommandIds; }

private:
  std::string mOrderInfo;
  std::vector<std::uint32_t> mCommandIds;
  int mPlayerId = 0;
};

}
CAMP_TYPE_NONCOPYABLE(em5::CommandableComponent)
