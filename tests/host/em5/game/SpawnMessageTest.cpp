#include "em5/base/Messages.h"
#include "em5/map/MapHelper.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/message/MessageProxy.h"
#include "qsf/message/MessageSystem.h"

namespace {

class SpawnMessageTest : public SessionTest {
protected:
  void listen() {
    listener.registerAt(qsf::MessageConfiguration(em5::Messages::EM5_SPAWN_ENTITY),
                        [this](const qsf::MessageParameters& parameters) {
                          spawned.push_back(parameters.getFilter(1));
                          const qsf::Entity* entity = map().getEntityById(parameters.getFilter(1));
                          complete = entity && entity->getComponents().size() > 2;
                        });
  }
  qsf::Map& map() { return session->getQsf().getMainMap(); }
  std::vector<std::uint64_t> spawned;
  bool complete = false;
  qsf::MessageProxy listener;
};

TEST_F(SpawnMessageTest, EachEntityOfARunningGameIsToldOnceAndWhenItIsComplete) {
  play();
  listen();
  const qsf::Entity* made = em5::MapHelper(map()).createObjectByLocalPrefabAssetId("em5/prefab/test/fire_engine");
  EXPECT_EQ(std::vector<std::uint64_t>{made->getId()}, spawned);
  EXPECT_TRUE(complete);
  map().createEntity(500);
  EXPECT_EQ((std::vector<std::uint64_t>{made->getId(), 500}), spawned);
}

TEST_F(SpawnMessageTest, TheMapsOwnEntitiesAreNotTold) {
  open();
  listen();
  session->setMapPreparation([](qsf::Map& prepared) { prepared.createEntity(100); });
  session->startGame(EMPTY_MAP);
  run(0.1);
  EXPECT_TRUE(spawned.empty());
}

TEST_F(SpawnMessageTest, TheEditorTellsNothing) {
  em5::HostSession::Options options;
  options.kind = em5::HostSession::Kind::EDITOR;
  open(options).startGame(EMPTY_MAP);
  listen();
  map().createEntity(500);
  EXPECT_TRUE(spawned.empty());
}

TEST_F(SpawnMessageTest, AnIdThatIsTakenIsNotToldAgain) {
  play();
  map().createEntity(500);
  listen();
  EXPECT_EQ(nullptr, map().createEntity(500));
  EXPECT_TRUE(spawned.empty());
}

}
