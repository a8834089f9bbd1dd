#include "em5/application/AccountManager.h"

#include "em5/application/Application.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/CallRecorder.h"

namespace {

using AccountManagerTest = SessionTest;

TEST_F(AccountManagerTest, TheCloudSynchronisesUntilItIsPaused) {
  play();
  em5::AccountManager& account = qsf::UniqueInstance<em5::Application>()->getAccountManager();
  EXPECT_FALSE(account.isCloudSyncPaused());
  account.setCloudSyncPaused(true);
  session->startGame(EMPTY_MAP);
  EXPECT_TRUE(account.isCloudSyncPaused());
  EXPECT_EQ(session->getQsf().getCallRecorder().getCalls().back().operation, "em5::AccountManager::setCloudSyncPaused");
}

}
