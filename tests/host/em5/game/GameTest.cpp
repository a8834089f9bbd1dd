#include "em5/game/Game.h"

#include "em5/base/Messages.h"
#include "host/em5/SessionFixture.h"
#include "qsf/message/MessageSystem.h"

namespace {

using GameTest = SessionTest;
using Ids = std::set<std::uint64_t>;

em5::SelectionManager& selection() { return *qsf::UniqueInstance<em5::Game>()->getSelectionManager(); }

TEST_F(GameTest, EmitsOneMessageForEachChangeOfTheSelection) {
  play();
  const auto count = [&] {
    return session->getQsf().getMessageSystem().getEmittedCount(em5::Messages::EM5_CHANGE_SELECTION);
  };
  selection().setSelection({7, 3});
  EXPECT_EQ(count(), 1u);
  selection().setSelection({3, 7});
  selection().addIdToSelection(7);
  selection().removeIdFromSelection(8);
  EXPECT_EQ(count(), 1u);
  selection().addIdToSelection(1);
  EXPECT_EQ(count(), 2u);
  EXPECT_EQ(selection().getSelectedIdSet(), (Ids{1, 3, 7}));
  EXPECT_TRUE(selection().isIdSelected(7));
  EXPECT_FALSE(selection().isIdSelected(2));
  selection().clearSelection();
  EXPECT_EQ(count(), 3u);
  selection().clearSelection();
  EXPECT_EQ(count(), 3u);
}

TEST_F(GameTest, DestroyedEntitiesLeaveTheSelectionAndUnknownIdsStay) {
  play();
  qsf::getMainMap().createEntity(100);
  qsf::getMainMap().createEntity(101);
  selection().setSelection({100, 101, 999});
  qsf::getMainMap().destroyObjectById(100);
  session->runFrame(TICK);
  EXPECT_EQ(selection().getSelectedIdSet(), (Ids{101, 999}));
}

TEST_F(GameTest, ANewGameHasAnEmptySelectionAndOneLocalPlayer) {
  play();
  selection().setSelection({100});
  em5::PlayerManager* players = qsf::UniqueInstance<em5::Game>()->getPlayerManager();
  players->getLocalPlayer()->setPlayerIndex(2);
  EXPECT_EQ(players->getPlayerByIndex(0), nullptr);
  session->requestRestart();
  EXPECT_TRUE(selection().getSelectedIdSet().empty());
  EXPECT_EQ(qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getLocalPlayer()->getPlayerIndex(), 0u);
}

TEST(PlayerManager, FindsPlayersByIndex) {
  em5::PlayerManager players;
  EXPECT_EQ(players.getPlayerByIndex(0), players.getLocalPlayer());
  em5::Player* second = players.addPlayer(3);
  ASSERT_TRUE(second);
  EXPECT_EQ(players.addPlayer(3), nullptr);
  EXPECT_EQ(players.getPlayerByIndex(3), second);
  EXPECT_EQ(players.getAllPlayers().size(), 2u);
  players.removePlayer(3);
  players.removePlayer(0);
  EXPECT_EQ(players.getAllPlayers(), std::vector<em5::Player*>{players.getLocalPlayer()});
}

}
