#include "qsf/renderer/MaterialVariationManager.h"

#include "host/qsf/TestWorld.h"
#include "qsf/base/CallRecorder.h"

namespace {

using MaterialVariationManagerTest = host_test::WorldTest;

TEST_F(MaterialVariationManagerTest, AValueIsNotedWithEntityAndProperty) {
  const qsf::Entity& entity = makeEntity(100);
  using Manager = qsf::MaterialVariationManager;
  using Value = qsf::MaterialPropertyValue;
  Manager::setEntityMaterialPropertyValue(entity, "UseUvScrolling", Value::fromBoolean(true));
  Manager::setEntityMaterialPropertyValue(entity, "UvOffsetU", Value::fromFloat(0.25f), 3);
  Manager::setEntityMaterialPropertyValue(entity, qsf::StringHash(77u), Value::fromBoolean(false));
  const auto& calls = host.getCallRecorder().getCalls();
  ASSERT_EQ(calls.size(), 3u);
  using Arguments = std::vector<std::string>;
  EXPECT_EQ(calls[0].operation, "qsf::MaterialVariationManager::setEntityMaterialPropertyValue");
  EXPECT_EQ(calls[0].arguments, (Arguments{"100", "UseUvScrolling", "1", "4294967295"}));
  EXPECT_EQ(calls[1].arguments, (Arguments{"100", "UvOffsetU", "0.25", "3"}));
  EXPECT_EQ(calls[2].arguments, (Arguments{"100", "77", "0", "4294967295"}));
}

}
