#include "host/qsf/TestWorld.h"
#include "qsf/prototype/PrototypeManager.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/classbuilder.hpp>

namespace prefabTest {

/// Its first setter changes its second property, and both are other than they seem in a fresh one.
class CoupledComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"prefabTest::CoupledComponent"};
  using Component::Component;
  static void declareCamp() {
    camp::Class::declare<CoupledComponent>("prefabTest::CoupledComponent")
        .base<Component>()
        .constructor1<qsf::Prototype*>()
        .property("Energy", &CoupledComponent::mEnergy, &CoupledComponent::setEnergy)
        .property("Injured", &CoupledComponent::mInjured)
        .property("Ids", &CoupledComponent::mIds);
  }
  void setEnergy(int energy) {
    mEnergy = energy;
    mInjured = energy == 0;
  }

private:
  int mEnergy = 100;
  bool mInjured = false;
  std::vector<int> mIds{1, 2};
};

}
CAMP_TYPE_NONCOPYABLE(prefabTest::CoupledComponent)

namespace {

class PrefabTest : public host_test::WorldTest {
protected:
  PrefabTest() { qsf::ClassRegistry::declareOnce<prefabTest::CoupledComponent>(); }
  ~PrefabTest() override {
    map.clear();
    host.getMainPrototypeManager().clear();
    qsf::ClassRegistry::removeClass(camp::classByType<prefabTest::CoupledComponent>());
  }
  qsf::Entity& spawn(const std::string& components) {
    project.write("prefab/test/it.json", "{\"components\": {" + components + "}}");
    mountProject();
    return *map.createObjectByLocalPrefabAssetId("test/prefab/test/it");
  }
  /// All properties, a line each, but the one that names an entity's prefab.
  static std::string describe(const qsf::Component& component) {
    std::string text;
    const camp::Class& metaclass = component.getCampClass();
    for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
      if (const std::string& name = metaclass.property(i).name(); name != "BasePrefab")
        text += metaclass.name() + "." + name + "=" + component.getPropertyAsString(name) + "\n";
    return text;
  }
};

TEST_F(PrefabTest, AnEntityHasThePropertiesOfItsPrefab) {
  mountBase();
  const std::vector<std::string> names = host_test::findPrefabsOfTheHost(host.getProjectManager());
  ASSERT_GT(names.size(), 10u);
  for (const std::string& name : names) {
    const qsf::Prefab& prefab = *host.getMainPrototypeManager().getPrefabByLocalAssetId(name);
    const qsf::Entity& entity = *map.createObjectFromPrefab(prefab);
    for (const qsf::Component* component : prefab.getComponents()) {
      const qsf::Component* copy = entity.getComponentById(component->getId());
      ASSERT_NE(copy, nullptr) << name;
      EXPECT_EQ(describe(*copy), describe(*component)) << name;
    }
  }
}

TEST_F(PrefabTest, WhatASetterChangesBesideItsPropertyIsSetBack) {
  const qsf::Entity& entity = spawn(R"("prefabTest::CoupledComponent": {"Energy": 0, "Injured": false, "Ids": [7]})");
  auto* component = entity.getComponent<prefabTest::CoupledComponent>();
  ASSERT_NE(component, nullptr);
  EXPECT_EQ(component->getPropertyAsString("Energy"), "0");
  EXPECT_EQ(component->getPropertyAsString("Injured"), "0");
  EXPECT_EQ(component->getPropertyAsString("Ids"), "7");
}

TEST_F(PrefabTest, AnArrayThatThePrefabEmptiesIsEmpty) {
  const qsf::Entity& entity = spawn(R"("prefabTest::CoupledComponent": {"Ids": []})");
  EXPECT_EQ(entity.getComponent<prefabTest::CoupledComponent>()->getPropertyAsString("Ids"), "");
}

TEST_F(PrefabTest, EntitiesOfOnePrefabAreIndependent) {
  const qsf::Entity& first = spawn(R"("prefabTest::CoupledComponent": {"Energy": 50})");
  first.getComponent<prefabTest::CoupledComponent>()->setEnergy(10);
  const qsf::Entity& second = *map.createObjectByLocalPrefabAssetId("test/prefab/test/it");
  EXPECT_EQ(second.getComponent<prefabTest::CoupledComponent>()->getPropertyAsString("Energy"), "50");
}

}
