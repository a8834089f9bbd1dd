#include "apps/tidemark/test/TestSession.h"

#include "apps/tidemark/test/RunTest.h"
#include "em5/game/HostSession.h"

namespace tidemark::test {

namespace {

TEST(TestSession, SettingsReachTheHost) {
  bool looked = false;
  const auto failures = runWith(
      "$ @language de\n$ @account Ada\n$ @game campaign\n$ @players 3\n$ @seed 7\n$ @for 0\n$ @expect triggers 0\n",
      [&](TestSession& session) {
        const em5::HostSession::Options& options = session.host().getOptions();
        EXPECT_EQ(options.language, "de");
        EXPECT_EQ(options.account, "Ada");
        EXPECT_EQ(options.gameMode, em5::GameModeType::CAMPAIGN);
        EXPECT_EQ(options.seed, 7u);
        EXPECT_EQ(options.players, 3u);
        EXPECT_EQ(options.kind, em5::HostSession::Kind::GAME);
        EXPECT_EQ(options.logThreshold, 0);
        looked = true;
      });
  EXPECT_TRUE(looked);
  EXPECT_TRUE(failures.empty());
}

TEST(TestSession, EditorTestsRunInTheEditor) {
  bool looked = false;
  const auto failures = runWith("$ @editor\n$ @for 0\n$ @expect triggers 0\n", [&](TestSession& session) {
    EXPECT_EQ(session.host().getOptions().kind, em5::HostSession::Kind::EDITOR);
    looked = true;
  });
  EXPECT_TRUE(looked);
  EXPECT_TRUE(failures.empty());
}

TEST(TestSession, AFaultOfAnActionEndsTheTest) {
  const auto failures = runWith("$ @expect triggers 5\n$ @expect after shutdown log INFO x\n",
                                [](TestSession&) { throw std::runtime_error("broken"); });
  ASSERT_EQ(failures.size(), 1u);
  EXPECT_EQ(failures[0].kind, Failure::Kind::ERROR);
  EXPECT_EQ(failures[0].expected, "broken");
}

}

}
