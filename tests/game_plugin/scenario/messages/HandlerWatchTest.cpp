#include "game_plugin/scenario/messages/HandlerWatch.h"

#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

class Watch final : public HandlerWatch {
public:
  void forgetHandler(const ScenarioHandler* handler) override { forgotten.push_back(handler); }
  std::vector<const ScenarioHandler*> forgotten;
};

TEST(HandlerWatch, IsToldOfAHandlerThatIsRetired) {
  const Watch watch;
  const ScenarioHandler* handler = nullptr;
  {
    const Script script("InitNewTrigger(\"t\",true,false);");
    handler = script.handler;
    EXPECT_TRUE(watch.forgotten.empty());
  }
  ASSERT_FALSE(watch.forgotten.empty());
  for (const ScenarioHandler* forgotten : watch.forgotten)
    EXPECT_EQ(forgotten, handler);
}

TEST(HandlerWatch, IsToldOfAHandlerThatNobodyRetires) {
  const Watch watch;
  auto handler = std::make_unique<ScenarioHandler>(std::make_shared<GlobalStores>());
  const ScenarioHandler* address = handler.get();
  handler.reset();
  EXPECT_EQ(watch.forgotten, std::vector<const ScenarioHandler*>{address});
}

TEST(HandlerWatch, IsNotToldOnceItIsGone) {
  const Script script("InitNewTrigger(\"t\",true,false);");
  const Watch before;
  { const Watch gone; }
  const Watch behind;
  ScenarioHandler::retire(new ScenarioHandler(std::make_shared<GlobalStores>()));
  EXPECT_EQ(before.forgotten.size(), behind.forgotten.size());
  EXPECT_FALSE(behind.forgotten.empty());
}

}
