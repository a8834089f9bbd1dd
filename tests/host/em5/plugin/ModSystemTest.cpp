#include "em5/plugin/ModSystem.h"

#include "em5/multiplayer/NetworkManager.h"
#include "em5/plugin/Plugin.h"
#include "host/em5/SessionFixture.h"
#include "qsf/asset/Project.h"
#include "qsf/base/LoadError.h"

namespace {

using ModSystemTest = SessionTest;

TEST_F(ModSystemTest, ListsModificationsInTheOrderOfTheirNamingWithoutTheBaseProject) {
  open();
  session->mountMod(writeProject("zebra"));
  session->mountMod(writeProject("ant"), {true, false});
  const auto& mods = em5::Plugin::getInstance()->getModSystem().getMods();
  ASSERT_EQ(mods.size(), 2u);
  EXPECT_EQ(mods[0]->getName(), "zebra");
  EXPECT_TRUE(mods[0]->isMounted());
  EXPECT_TRUE(mods[0]->isEnabled());
  EXPECT_EQ(mods[0]->getProject()->getName(), "zebra");
  EXPECT_TRUE(mods[1]->isMounted());
  EXPECT_FALSE(mods[1]->isEnabled());
}

TEST_F(ModSystemTest, AnUnmountedModificationHasNameAndNoProject) {
  open();
  session->mountMod(writeProject("resting"), {false, true});
  const em5::Mod* mod = em5::Plugin::getInstance()->getModSystem().getModByName("resting");
  ASSERT_TRUE(mod);
  EXPECT_FALSE(mod->isMounted());
  EXPECT_EQ(mod->getProject(), nullptr);
  EXPECT_EQ(session->getQsf().getProjectManager().getProjectByName("resting"), nullptr);
}

TEST_F(ModSystemTest, AFaultyProjectAddsNothing) {
  open();
  EXPECT_THROW(session->mountMod(folder() + "/missing"), qsf::LoadError);
  EXPECT_THROW(session->mountMod(folder() + "/missing", {false, true}), qsf::LoadError);
  EXPECT_THROW(session->mountMod(write("nameless", "project.json", "{}"), {false, true}), qsf::LoadError);
  session->mountMod(writeProject("twice"));
  EXPECT_THROW(session->mountMod(folder() + "/twice"), qsf::LoadError);
  EXPECT_THROW(session->mountMod(folder() + "/twice", {false, true}), qsf::LoadError);
  EXPECT_EQ(em5::Plugin::getInstance()->getModSystem().getMods().size(), 1u);
}

TEST_F(ModSystemTest, WithoutASessionNobodyHandlesMessagesOfOtherMachines) {
  open();
  const em5::NetworkManager& network = em5::Plugin::getInstance()->getNetworkManager();
  EXPECT_FALSE(network.isMultiplayActive());
  EXPECT_EQ(network.getSession(), nullptr);
}

TEST(OperationMessageHandlerManager, FindsHandlersByBothIds) {
  em5::multiplayer::OperationMessageHandlerManager manager;
  EXPECT_EQ(manager.getHandlerById(48, 0), nullptr);
  auto handler = std::make_unique<em5::multiplayer::OperationMessageHandler>();
  auto* raw = handler.get();
  manager.registerHandler(48, 0, std::move(handler));
  EXPECT_EQ(manager.getHandlerById(48, 0), raw);
  EXPECT_EQ(manager.getHandlerById(48, 1), nullptr);
}

}
