// What scripts don't see of the ladder, the door, the smoke and the event targets.
#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/component/MeshAnimationComponent.h"
#include "game_plugin/component/NewDoorComponent.h"
#include "game_plugin/component/SmokeComponent.h"

#include "game_plugin/ModuleFixture.h"

namespace {

class SmallComponentsTest : public ModuleTest {
protected:
  template <class T> static T& create(std::uint64_t id) {
    return *qsf::getMainMap().createEntity(id)->getOrCreateComponent<T>();
  }
  static std::string tagOf(const camp::Property& property, const char* tag) {
    return property.tag(tag).to<std::string>();
  }
};

TEST_F(SmallComponentsTest, TargetsAreHeldOnceInTheirOrder) {
  start();
  auto& target = create<script::EventTargetComponent>(100);
  target.add("b");
  target.add("a");
  target.add("b");
  EXPECT_EQ(target.getObjectiveIds(), (std::vector<std::string>{"b", "a"}));
  EXPECT_TRUE(target.has("a"));
  EXPECT_FALSE(target.has("A"));
  EXPECT_FALSE(target.has(""));
  target.remove("c");
  target.remove("b");
  EXPECT_EQ(target.getObjectiveIds(), std::vector<std::string>{"a"});
  EXPECT_EQ(target.getCampClass().tag("Name").to<std::string>(), "script::EventTargetComponent");
}

TEST_F(SmallComponentsTest, TheLadderIsDescribedForTheEditor) {
  start();
  const camp::Class& ladder = create<scenario::MeshAnimationComponent>(100).getCampClass();
  EXPECT_EQ(ladder.tag("Name").to<std::string>(), "scenario::MeshAnimationComponent");
  EXPECT_EQ(tagOf(ladder.property("Anim"), "Description"), "The animation which is used to extend the arm");
  EXPECT_TRUE(ladder.property("Anim").hasTag("AssetType"));
  EXPECT_TRUE(ladder.property("Entity").hasTag("Slot"));
  for (const char* level : {"Wanted Level", "Current Level"}) {
    EXPECT_EQ(ladder.property(level).tag("RangeMinimum").to<float>(), 0.0f);
    EXPECT_EQ(ladder.property(level).tag("RangeMaximum").to<float>(), 1.0f);
    EXPECT_TRUE(ladder.property(level).hasTag("Serializable"));
  }
}

TEST_F(SmallComponentsTest, TheDoorHasTheHostsStatesAndAForeignDescription) {
  start();
  auto& door = create<bt::NewDoorComponent>(100);
  EXPECT_EQ(door.getPropertyAsString("DoorState"), "DOOR_CLOSED");
  EXPECT_EQ(tagOf(door.getCampClass().property("DoorState"), "Description"),
            "If true smoke will appear. If 'Burn Object Required' is true, it will ignite these objects");
  EXPECT_EQ(door.getCampClass().tag("Name").to<std::string>(), "bt::NewDoorComponent");
}

TEST_F(SmallComponentsTest, TheSmokeIsDescribedForTheEditor) {
  start();
  const camp::Class& smoke = create<script::SmokeComponent>(100).getCampClass();
  EXPECT_EQ(smoke.tag("Name").to<std::string>(), "script::SmokeComponent");
  EXPECT_EQ(smoke.tag("Description").to<std::string>(), "script::SmokeComponent");
  const std::pair<const char*, const char*> slots[] = {
      {"Linked Particles", "link smoke particles to this slot"},
      {"Burnable Objects",
       "link objects that can burn. Notice they get unlinked at gamestart which makes them usable as targets"},
      {"Burnable Objects in House",
       "A special kind of entity, which has the fire component in the child. This makes it impossible to be "
       "extinguished by hoses and vehicles"},
      {"BulletBox Area", "Use Collisionmask: 16. CollisionFiltergroup 1540 and set AIProximityProxy as type to let "
                         "units walk at the component"}};
  for (const auto& [name, description] : slots) {
    EXPECT_EQ(tagOf(smoke.property(name), "Description"), description);
    EXPECT_TRUE(smoke.property(name).hasTag("Slot")) << name;
  }
  EXPECT_EQ(tagOf(smoke.property("StartSimulationAtGameStart"), "Description"),
            "If true smoke will appear. If 'Burn Object Required' is true, it will ignite these objects");
  EXPECT_EQ(tagOf(smoke.property("Burning Object Required"), "Description"),
            "If true the smoke will turn on if any object is burning and go off when all entities are extinguished");
  EXPECT_FALSE(smoke.property("StartSimulationAtGameStart").tag("Default").to<bool>());
  EXPECT_FALSE(smoke.property("Burning Object Required").tag("Default").to<bool>());
}

TEST_F(SmallComponentsTest, ALevelBeyondTheRangeEndsAtItsEnd) {
  start();
  create<qsf::MeshAnimationComponent>(100);
  auto& ladder = create<scenario::MeshAnimationComponent>(101);
  ladder.setPropertyByString("Anim", "em5/animation/test/extend");
  ladder.setPropertyByString("Entity", "100");
  ladder.setPropertyByString("Animation Speed", "100");
  ladder.setWantedLevel(5);
  run(3);
  EXPECT_EQ(ladder.getCurrentLevel(), 1.0f);
  EXPECT_EQ(ladder.getPropertyAsString("Animation Finished"), "0") << "it never gets there";
  ladder.setWantedLevel(1);
  run(0.1);
  EXPECT_EQ(ladder.getPropertyAsString("Animation Finished"), "1");
}

TEST_F(SmallComponentsTest, TheLadderMovesWhileTheGameIsPaused) {
  start();
  create<qsf::MeshAnimationComponent>(100);
  auto& ladder = create<scenario::MeshAnimationComponent>(101);
  ladder.setPropertyByString("Anim", "em5/animation/test/extend");
  ladder.setPropertyByString("Entity", "100");
  ladder.setPropertyByString("Animation Speed", "100");
  session->setPaused(true);
  ladder.setWantedLevel(0.5f);
  run(1);
  EXPECT_EQ(ladder.getCurrentLevel(), 0.5f);
}

TEST_F(SmallComponentsTest, AnEqualWantedLevelStartsNoJob) {
  start();
  auto& ladder = create<scenario::MeshAnimationComponent>(101);
  run(0.1);
  EXPECT_EQ(ladder.getPropertyAsString("Animation Finished"), "1") << "it has no ladder";
  ladder.setCurrentLevel(0.3f);
  ladder.setPropertyByString("Animation Finished", "0");
  ladder.setWantedLevel(0.3f);
  run(0.1);
  EXPECT_EQ(ladder.getPropertyAsString("Animation Finished"), "0");
}

}
