// Which values of a component are its own and which follow its prefab.
#include "host/qsf/TestWorld.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"

namespace {

using State = qsf::InheritedObject;

class InheritedObjectTest : public host_test::WorldTest {
protected:
  qsf::MetadataComponent& metadata = *map.createEntity(100)->getOrCreateComponent<qsf::MetadataComponent>();
  State::PropertyOverrideState stateOf(const char* property) const {
    return metadata.getPropertyOverrideState(qsf::StringHash(property));
  }
};

TEST_F(InheritedObjectTest, AtFirstNoValueIsTheObjectsOwn) {
  EXPECT_EQ(stateOf("Name"), State::INHERITED);
  EXPECT_EQ(stateOf("Nome"), State::INHERITED);
}

TEST_F(InheritedObjectTest, AStateIsThatOfOnePropertyAndLeavesItsValue) {
  metadata.setName("station");
  metadata.setPropertyOverrideState(qsf::StringHash("Name"), State::OVERRIDDEN);
  EXPECT_EQ(stateOf("Name"), State::OVERRIDDEN);
  EXPECT_EQ(stateOf("Description"), State::INHERITED);
  EXPECT_EQ(metadata.getName(), "station");
  metadata.setPropertyOverrideState(qsf::StringHash("Name"), State::INHERITED);
  EXPECT_EQ(stateOf("Name"), State::INHERITED);
}

TEST_F(InheritedObjectTest, AllPropertiesTakeThoseOfBaseClassesAlong) {
  metadata.setAllPropertyOverrideFlags(true);
  for (const char* property : {"Name", "Description", "BasePrefab", "Active"})
    EXPECT_EQ(stateOf(property), State::OVERRIDDEN) << property;
  metadata.setAllPropertyOverrideFlags(false);
  for (const char* property : {"Name", "Description", "BasePrefab", "Active"})
    EXPECT_EQ(stateOf(property), State::INHERITED) << property;
}

TEST_F(InheritedObjectTest, APropertyThatIsNotThereKeepsNoState) {
  metadata.setPropertyOverrideState(qsf::StringHash("Nome"), State::OVERRIDDEN);
  EXPECT_EQ(stateOf("Nome"), State::INHERITED);
}

}
