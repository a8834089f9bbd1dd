#include "em5/gui/HintHelper.h"
#include "host/qsf/TestWorld.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/Random.h"
#include "qsf/localization/LocalizationSystem.h"

#include <set>

using em5::HintHelper;

namespace {

class HintHelperTest : public host_test::WorldTest {
protected:
  HintHelperTest() { HintHelper::clear(); }
  ~HintHelperTest() override { HintHelper::clear(); }
};

TEST_F(HintHelperTest, AMessageOfTheSupervisorStaysForTenSeconds) {
  HintHelper::showSupervisorMessage("ID_A", true);
  HintHelper::showSupervisorMessage("ID_B");
  ASSERT_EQ(2u, HintHelper::getCurrentSupervisorMessages().size());
  EXPECT_EQ("ID_A", HintHelper::getCurrentSupervisorMessages()[0].text);
  EXPECT_TRUE(HintHelper::getCurrentSupervisorMessages()[0].audioOnly);
  EXPECT_TRUE(HintHelper::getCurrentHints().empty());
  HintHelper::update(qsf::Time::fromSeconds(9));
  EXPECT_EQ(2u, HintHelper::getCurrentSupervisorMessages().size());
  HintHelper::update(qsf::Time::fromSeconds(1));
  EXPECT_TRUE(HintHelper::getCurrentSupervisorMessages().empty());
}

TEST_F(HintHelperTest, MessagesOfTheSupervisorAreRecorded) {
  HintHelper::showSupervisorMessage("ID_A", true);
  ASSERT_EQ(1u, host.getCallRecorder().getCalls().size());
  EXPECT_EQ("em5::HintHelper::showSupervisorMessage", host.getCallRecorder().getCalls()[0].operation);
  EXPECT_EQ((std::vector<std::string>{"ID_A", "1"}), host.getCallRecorder().getCalls()[0].arguments);
}

TEST_F(HintHelperTest, OneOfTheTextsOfALocalisedIdIsDrawn) {
  project.write("text/en/a.json", R"({"ID_A": "One|Two|Three and a half", "ID_B": "Only"})");
  mountProject();
  host.getLocalizationSystem().reload();
  qsf::Random::setSeed(1);
  std::set<std::string> drawn;
  for (int i = 0; i < 50; ++i)
    drawn.insert(HintHelper::getRandomStringOfIdString("ID_A"));
  EXPECT_EQ((std::set<std::string>{"One", "Two", "Three and a half"}), drawn);
  EXPECT_EQ("Only", HintHelper::getRandomStringOfIdString("ID_B"));
}

TEST_F(HintHelperTest, ATextThatIsNoIdStaysAsItIs) {
  EXPECT_EQ("ID_A", HintHelper::getRandomStringOfIdString("ID_A"));
  EXPECT_EQ("ID_A,ID_B", HintHelper::getRandomStringOfIdString("ID_A,ID_B"));
  EXPECT_EQ("Smoke | fire", HintHelper::getRandomStringOfIdString("Smoke | fire"));
  EXPECT_EQ("", HintHelper::getRandomStringOfIdString(""));
}

}
