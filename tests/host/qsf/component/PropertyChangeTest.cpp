// Components that hear of their entity's properties as they are set.
#include "host/qsf/TestWorld.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/classbuilder.hpp>

namespace propertyChangeTest {

class ListeningComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"propertyChangeTest::ListeningComponent"};
  using Component::Component;
  static void declareCamp() {
    camp::Class::declare<ListeningComponent>("propertyChangeTest::ListeningComponent")
        .base<Component>()
        .constructor1<qsf::Prototype*>();
  }
  std::vector<std::string> heard;

protected:
  bool implementsOnComponentPropertyChange() const override { return true; }
  void onComponentPropertyChange(const Component& component, qsf::StringHash propertyId) override {
    heard.push_back(component.getCampClass().name() + (propertyId == qsf::StringHash("LocalRotation") ? ".R" : ".P"));
    if (heard.size() == 3) throw std::runtime_error("too much");
  }
};

}
CAMP_TYPE_NONCOPYABLE(propertyChangeTest::ListeningComponent)

namespace {

using propertyChangeTest::ListeningComponent;
using Heard = std::vector<std::string>;

class PropertyChangeTest : public host_test::WorldTest {
protected:
  PropertyChangeTest() { qsf::ClassRegistry::declareOnce<ListeningComponent>(); }
  ~PropertyChangeTest() override {
    map.clear();
    qsf::ClassRegistry::removeClass(camp::classByType<ListeningComponent>());
  }
  const glm::quat turned{0.6f, 0, 0.8f, 0};
};

TEST_F(PropertyChangeTest, IsHeardAtOnceByTheEntitysRunningComponents) {
  makeEntity(100);
  makeEntity(101);
  auto& link = *map.getEntityById(100)->getOrCreateComponent<qsf::LinkComponent>();
  auto& listener = *map.getEntityById(100)->getOrCreateComponent<ListeningComponent>();
  auto& other = *map.getEntityById(101)->getOrCreateComponent<ListeningComponent>();
  link.setLocalRotation(turned);
  EXPECT_TRUE(listener.heard.empty()) << "it doesn't run yet";
  map.startup();
  link.setPropertyByString("LocalRotation", "1 0 0 0");
  link.setLocalPosition({1, 0, 0});
  EXPECT_EQ((Heard{"qsf::LinkComponent.R", "qsf::LinkComponent.P"}), listener.heard);
  EXPECT_TRUE(other.heard.empty());
}

TEST_F(PropertyChangeTest, TheWorldsTurnIsAChangeOfTheLocalOne) {
  makeEntity(100);
  makeEntity(101);
  auto& link = *map.getEntityById(101)->getOrCreateComponent<qsf::LinkComponent>();
  link.setParentId(100);
  auto& listener = *map.getEntityById(101)->getOrCreateComponent<ListeningComponent>();
  map.startup();
  auto& transform = *map.getEntityById(101)->getComponent<qsf::TransformComponent>();
  transform.setPosition({5, 0, 0});
  EXPECT_TRUE(listener.heard.empty());
  transform.setRotation(turned);
  EXPECT_EQ(Heard{"qsf::LinkComponent.R"}, listener.heard);
}

TEST_F(PropertyChangeTest, AListenersFaultCostsThatCallAndTheGoneHearNothing) {
  makeEntity(100);
  auto& link = *map.getEntityById(100)->getOrCreateComponent<qsf::LinkComponent>();
  auto& listener = *map.getEntityById(100)->getOrCreateComponent<ListeningComponent>();
  map.startup();
  for (int i = 0; i < 4; ++i)
    link.setLocalRotation(turned);
  EXPECT_EQ(4u, listener.heard.size());
  map.getEntityById(100)->destroyComponentById(ListeningComponent::COMPONENT_ID);
  link.setLocalRotation(turned);
  EXPECT_EQ(4u, listener.heard.size());
}

}
