#include "apps/tidemark/test/TestPlan.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>

namespace tidemark::test {

namespace {

TestPlan readGood(const std::string& text) {
  PlanResult result = readPlan("some/test.script", text);
  for (const PlanFault& fault : result.faults)
    ADD_FAILURE() << fault.line << ": " << fault.text;
  return std::move(result.plan);
}

PlanFault readFaulty(const std::string& text) {
  const PlanResult result = readPlan("some/test.script", text);
  EXPECT_EQ(result.faults.size(), 1u) << text;
  return result.faults.empty() ? PlanFault{0, ""} : result.faults.front();
}

const std::string EXPECTATION = "$ @expect triggers 0\n";

TEST(PlanReader, DefaultsAreThoseOfThePage) {
  const TestPlan plan = readGood("$ @expect triggers 1\nInitNewTrigger();\n");
  ASSERT_EQ(plan.projects.size(), 1u);
  EXPECT_EQ(plan.projects[0].name, "test");
  ASSERT_EQ(plan.projects[0].scripts.size(), 1u);
  EXPECT_EQ(plan.projects[0].scripts[0].key, "main");
  EXPECT_EQ(plan.projects[0].scripts[0].path, "main.script");
  EXPECT_EQ(plan.projects[0].scripts[0].mode, "MAP_STARTUP_SIMULATION");
  EXPECT_EQ(plan.projects[0].scripts[0].text, "$ @expect triggers 1\nInitNewTrigger();\n");
  EXPECT_EQ(plan.mainMaps, std::vector<std::string>{"All"});
  EXPECT_EQ(plan.map, "em5/map/test/empty");
  EXPECT_EQ(plan.numberOfFrames(), 20u);
}

TEST(PlanReader, AGamepadIsToldPartByPart) {
  EXPECT_FALSE(readGood(EXPECTATION).gamepad.has_value());
  const auto plain = readGood(EXPECTATION + "$ @gamepad").gamepad;
  ASSERT_TRUE(plain.has_value());
  EXPECT_EQ(plain->vendor, "Wireless Gamepad");
  EXPECT_EQ(plain->buttons, 16u);
  EXPECT_EQ(plain->axes, 6u);
  const auto told = readGood(EXPECTATION + "$ @gamepad axes 2 vendor \"Pad of Tin\" buttons 0").gamepad;
  EXPECT_EQ(told->vendor, "Pad of Tin");
  EXPECT_EQ(told->buttons, 0u);
  EXPECT_EQ(told->axes, 2u);
}

TEST(PlanReader, FileWithoutFinalLineFeedStaysSo) {
  EXPECT_EQ(readGood(EXPECTATION + "Foo();").projects[0].scripts[0].text, EXPECTATION + "Foo();");
}

TEST(PlanReader, ScriptSectionsAreScriptsOfTheirOwn) {
  const TestPlan plan = readGood(
      EXPECTATION +
      "A();\n$ @script sub/helper.v2.script MAP_STARTUP\nB();\n$ a comment\n$ @end\nC();\n$ @script none none\nD();");
  const auto& scripts = plan.projects[0].scripts;
  ASSERT_EQ(scripts.size(), 3u);
  EXPECT_EQ(scripts[1].path, "sub/helper.v2.script");
  EXPECT_EQ(scripts[1].key, "sub/helper.v2");
  EXPECT_EQ(scripts[1].mode, "MAP_STARTUP");
  EXPECT_EQ(scripts[1].text, "B();\n$ a comment\n");
  EXPECT_EQ(scripts[2].mode, "");
  EXPECT_EQ(scripts[2].key, "none");
  EXPECT_EQ(scripts[2].text, "D();");
}

TEST(PlanReader, LinesOfMainKeepTheirNumbers) {
  const TestPlan plan = readGood(EXPECTATION + "A();\n$ @script helper.script\nB();\n$ @end\nC();\n");
  EXPECT_EQ(plan.projects[0].scripts[0].text, EXPECTATION + "A();\n$ @script helper.script\n\n$ @end\nC();\n");
}

TEST(PlanReader, DirectivesInsideAScriptSectionAreDirectives) {
  const TestPlan plan = readGood("$ @script helper.script\nB();\n$ @expect in helper triggers 0\nC();\n");
  EXPECT_EQ(plan.expectations.size(), 1u);
  EXPECT_EQ(plan.projects[0].scripts[1].text, "B();\n$ @expect in helper triggers 0\nC();\n");
}

TEST(PlanReader, RawFilesHoldEveryLineUpToTheirEnd) {
  const TestPlan plan = readGood(EXPECTATION + "$ @file a/b.json\n{\n$ @script no\n}\n$ @end\n");
  ASSERT_EQ(plan.projects[0].files.size(), 1u);
  EXPECT_EQ(plan.projects[0].files[0].path, "a/b.json");
  EXPECT_EQ(plan.projects[0].files[0].text, "{\n$ @script no\n}\n");
  EXPECT_EQ(plan.projects[0].scripts.size(), 1u);
}

TEST(PlanReader, SectionsBelongToTheModificationBeforeThem) {
  const TestPlan plan =
      readGood(EXPECTATION + "$ @mod other disabled\n$ @script o.script\nB();\n$ @mod third unmounted\n$ @file x\n1\n$ "
                             "@end\n$ @mod test\n$ @script t.script\nC();\n");
  ASSERT_EQ(plan.projects.size(), 3u);
  EXPECT_EQ(plan.projects[0].scripts.size(), 2u);
  EXPECT_FALSE(plan.projects[1].enabled);
  EXPECT_TRUE(plan.projects[1].mounted);
  EXPECT_EQ(plan.projects[1].scripts[0].key, "o");
  EXPECT_TRUE(plan.projects[2].enabled);
  EXPECT_FALSE(plan.projects[2].mounted);
  EXPECT_EQ(plan.projects[2].files[0].text, "1\n");
}

TEST(PlanReader, SettingsAreRead) {
  const TestPlan plan = readGood(EXPECTATION + "$ @mode MAP_STARTUP\n$ @maps a b\n$ @encoding cp1252\n$ @eol crlf\n$ "
                                               "@map m\n$ @game campaign\n$ @editor\n$ @language de\n"
                                               "$ @account Ada\n$ @players 2\n$ @seed 7\n$ @tick 0.1\n$ @for 3.2\n");
  EXPECT_EQ(plan.projects[0].scripts[0].mode, "MAP_STARTUP");
  EXPECT_EQ(plan.mainMaps, (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(plan.encoding, TestPlan::Encoding::CODE_PAGE_1252);
  EXPECT_EQ(plan.lineEnd, TestPlan::LineEnd::CARRIAGE_RETURN);
  EXPECT_EQ(plan.map, "m");
  EXPECT_EQ(plan.gameMode, em5::GameModeType::CAMPAIGN);
  EXPECT_TRUE(plan.editor);
  EXPECT_EQ(plan.language, "de");
  EXPECT_EQ(plan.account, "Ada");
  EXPECT_EQ(plan.players, 2u);
  EXPECT_EQ(plan.seed, 7u);
  EXPECT_EQ(plan.numberOfFrames(), 32u);
}

TEST(PlanReader, StepsGoByTimeAndEqualTimesByLine) {
  const TestPlan plan = readGood("$ @at 0.5 expect triggers 0\n$ @at 0 pause\n$ @at 0.5 resume\n$ @at 0.501 restart\n");
  ASSERT_EQ(plan.steps.size(), 4u);
  EXPECT_EQ(plan.steps[0].text, "pause");
  EXPECT_EQ(plan.steps[1].text, "expect triggers 0");
  EXPECT_EQ(plan.steps[2].text, "resume");
  EXPECT_EQ(plan.steps[3].text, "restart");
}

struct Fault {
  const char* directive;
  const char* text;
};

class FaultyDirective : public testing::TestWithParam<Fault> {};

TEST_P(FaultyDirective, IsAnErrorWithItsLine) {
  const PlanFault fault = readFaulty("\n" + EXPECTATION + GetParam().directive + "\n");
  EXPECT_EQ(fault.line, 3);
  EXPECT_NE(fault.text.find(GetParam().text), std::string::npos) << fault.text;
}

INSTANTIATE_TEST_SUITE_P(
    All, FaultyDirective,
    testing::Values(
        Fault{"$ @expct x", "unknown directive"}, Fault{"$ @", "unknown directive"},
        Fault{"$ @for", "the duration is missing"}, Fault{"$ @for soon", "'soon' is no number"},
        Fault{"$ @for -1", "not between"}, Fault{"$ @for inf", "not between"}, Fault{"$ @for nan", "not between"},
        Fault{"$ @tick 0", "not between"}, Fault{"$ @for 1 2", "unexpected word '2'"},
        Fault{"$ @at 2 pause", "behind the end"}, Fault{"$ @at x pause", "is no number"},
        Fault{"$ @at 0 jump", "unknown action 'jump'"}, Fault{"$ @at 0", "an action is missing"},
        Fault{"$ @expect", "an expectation is missing"},
        Fault{"$ @expect something", "unknown expectation 'something'"},
        Fault{"$ @expect variable x", "an operator is missing"},
        Fault{"$ @expect variable x = 1", "'=' is no operator"}, Fault{"$ @expect variable x == y", "'y' is no number"},
        Fault{"$ @expect variable x == 1 within -1", "negative"},
        Fault{"$ @expect variable x < 1 within 1", "goes with"},
        Fault{"$ @expect variable x == 1 2", "unexpected word '2'"},
        Fault{"$ @expect bool x == yes", "neither true nor false"}, Fault{"$ @expect list x", "behind a list's name"},
        Fault{"$ @expect list x == a", "neither an id"}, Fault{"$ @expect list x size many", "is no id"},
        Fault{"$ @expect no thing x", "none of variable"}, Fault{"$ @expect store things == a", "none of variables"},
        Fault{"$ @expect file", "a path is missing"}, Fault{"$ @expect file f", "behind a file's path"},
        Fault{"$ @expect file f holds x", "behind a file's path"},
        Fault{"$ @expect file f ==", "the file's text is missing"},
        Fault{"$ @expect file f containing \"\"", "every file contains"},
        Fault{"$ @expect file f json a", "'==' is missing"}, Fault{"$ @expect file f json a size x", "is no id"},
        Fault{"$ @expect file f line 0 like x", "counted from 1"},
        Fault{"$ @expect file f line 1 x", "where 'like' stands"},
        Fault{"$ @expect file f line 1 like (", "is no pattern"}, Fault{"$ @expect file f lines many", "is no id"},
        Fault{"$ @expect file f exists 2", "unexpected word '2'"}, Fault{"$ @expect json r", "a path is missing"},
        Fault{"$ @expect json r a", "'==' is missing"}, Fault{"$ @expect json r a size x", "is no id"},
        Fault{"$ @expect trigger T", "it isn't told"}, Fault{"$ @expect trigger T sleepy", "'sleepy' is nothing"},
        Fault{"$ @expect script s asleep", "neither running nor stopped"},
        Fault{"$ @expect log LOUD x", "is no severity"},
        Fault{"$ @expect log INFO", "the text of the log line is missing"},
        Fault{"$ @expect log INFO x twice", "unexpected word 'twice'"},
        Fault{"$ @expect log INFO x 2", "unexpected word '2'"}, Fault{"$ @expect log INFO x -1 times", "is no id"},
        Fault{"$ @expect no other log above ANY", "other than ANY"},
        Fault{"$ @expect no other log", "'above' is missing"},
        Fault{"$ @expect after shutdown triggers 1", "expectation on the log"},
        Fault{"$ @at 0 expect after shutdown log INFO x", "without @at"},
        Fault{"$ @expect entity 100", "exists or missing is missing"},
        Fault{"$ @expect 100 at 1 2", "the z value is missing"},
        Fault{"$ @expect 100 thing == 1", "is no COMPONENT.PROPERTY"},
        Fault{"$ @expect 100 plan", "behind 'plan' stands"},
        Fault{"$ @expect 100 plan has A:1", "behind 'plan' stands"},
        Fault{"$ @expect 100 plan == em5::MoveAction", "'em5::MoveAction' is no TYPE:PRIORITY"},
        Fault{"$ @expect 100 plan == em5::MoveAction:low", "'low' is no priority"},
        Fault{"$ @expect 100 plan contains", "an action's TYPE is missing"},
        Fault{"$ @expect 100 plan lacks em5::MoveAction:-1", "'-1' is no priority"},
        Fault{"$ @expect 100 plan contains A:4294967296", "is no priority"},
        Fault{"$ @expect 100 plan contains A B", "unexpected word 'B'"},
        Fault{"$ @expect 100 action", "an action's TYPE or none is missing"},
        Fault{"$ @expect 100 action none with x=1", "unexpected word 'with'"},
        Fault{"$ @expect 100 action A with", "KEY=VALUE is missing"},
        Fault{"$ @expect 100 action A with target", "'target' is no KEY=VALUE"},
        Fault{"$ @expect 100 action A with =1", "'=1' is no KEY=VALUE"}, Fault{"$ @at 0 start", "'event' is missing"},
        Fault{"$ @at 0 start event", "the definition's path is missing"},
        Fault{"$ @at 0 start event a with", "PROPERTY=VALUE is missing"},
        Fault{"$ @at 0 start event a with b", "'b' is no PROPERTY=VALUE"},
        Fault{"$ @at 0 start event a with =b", "'=b' is no PROPERTY=VALUE"},
        Fault{"$ @at 0 start event a b", "unexpected word 'b'"}, Fault{"$ @at 0 save it", "unexpected word 'it'"},
        Fault{"$ @at 0 load it", "unexpected word 'it'"}, Fault{"$ @expect event", "the event's unique id is missing"},
        Fault{"$ @expect event fire running", "'fire' is no whole number"},
        Fault{"$ @expect event 1 burns", "'burns' is none of running, missing, name, type, objective"},
        Fault{"$ @expect event 1 name", "'==' is missing"},
        Fault{"$ @expect event 1 objective", "the objective's id or text is missing"},
        Fault{"$ @expect event 1 objective a done", "'done' is none of"},
        Fault{"$ @expect event 1 objective with text a reached", "'reached' is none of current, needed, missing"},
        Fault{"$ @expect event 1 objective a kind == GOOD", "'GOOD' is none of REQUIRED, OPTIONAL, FAIL"},
        Fault{"$ @expect event 1 objective a current == few", "'few' is no whole number"},
        Fault{"$ @expect events", "running, succeeded, failed is missing"},
        Fault{"$ @expect events running -1", "is no id"}, Fault{"$ @expect 100 in", "'event' is missing"},
        Fault{"$ @expect 100 in event fire", "'fire' is no whole number"},
        Fault{"$ @expect 100 targets", "'==' is missing"}, Fault{"$ @expect 100 faces", "an entity's id is missing"},
        Fault{"$ @expect 100 faces north", "'north' is neither an id"},
        Fault{"$ @expect 100 faces 101 within -1", "negative"},
        Fault{"$ @expect 100 faces 101 within", "the distance behind 'within' is missing"},
        Fault{"$ @expect 100 offset", "the animation's name is missing"},
        Fault{"$ @expect 100 offset a < 1", "found '<' where"},
        Fault{"$ @expect 100 offset a == x", "'x' is no number"},
        Fault{"$ @expect 100 logic", "the game logic's TYPE is missing"},
        Fault{"$ @expect 100 logic A", "present or missing is missing"},
        Fault{"$ @expect 100 logic A on", "'on' is neither present nor missing"},
        Fault{"$ @expect 100 C.P", "behind a property stands"}, Fault{"$ @expect 100 C.P = 1", "'=' is no operator"},
        Fault{"$ @expect 100 C.P < x", "'x' is no number"}, Fault{"$ @expect 100 C.P < 1 within 1", "goes with"},
        Fault{"$ @expect 100 C.P containing", "the text that it holds is missing"},
        Fault{"$ @expect 100 C.P containing \"\"", "an empty text"},
        Fault{"$ @expect 100 C.P containing x often", "unexpected word 'often'"},
        Fault{"$ @expect 100 C.P size few", "'few' is no id"}, Fault{"$ @expect 100 icon 5", "on or off is missing"},
        Fault{"$ @expect 100 icon five on", "'five' is no whole number"},
        Fault{"$ @expect 100 icon -1 on", "out of range"}, Fault{"$ @expect 100 icon 5 visible", "neither on nor off"},
        Fault{"$ @expect 100 bar 5", "== or off"}, Fault{"$ @expect 100 bar 5 on", "== or off"},
        Fault{"$ @expect 100 bar 5 == full", "'full' is no number"},
        Fault{"$ @expect 100 bar 5 off within 1", "unexpected word 'within'"},
        Fault{"$ @expect call", "the operation's name is missing"},
        Fault{"$ @expect call a with", "behind 'with' stand arguments"},
        Fault{"$ @expect call a with never", "behind 'with' stand arguments"},
        Fault{"$ @expect call a before", "the second operation's name is missing"},
        Fault{"$ @expect call a before b never", "unexpected word 'never'"},
        Fault{"$ @expect 100 bone", "the bone's name is missing"},
        Fault{"$ @expect 100 bone Arm", "behind the bone's name stands"},
        Fault{"$ @expect 100 bone Arm position == \"1 2\"", "'1 2' is not 3 numbers"},
        Fault{"$ @expect 100 bone Arm rotation == \"1 2 3\"", "is not 4 numbers"},
        Fault{"$ @expect 100 bone Arm scale == \"1 x 3\"", "is not 3 numbers"},
        Fault{"$ @expect 100 bone Arm turned far", "'far' is no number"},
        Fault{"$ @expect 100 bone Arm manual 1", "unexpected word '1'"},
        Fault{"$ @gamepad wheels 4", "'wheels' is none of vendor, buttons, axes"},
        Fault{"$ @gamepad buttons many", "'many' is no id"},
        Fault{"$ @gamepad buttons 257", "the number of buttons is above 256"},
        Fault{"$ @at 0 gamepad", "behind 'gamepad' stands"},
        Fault{"$ @at 0 gamepad press 0", "the button's number counts from 1"},
        Fault{"$ @at 0 gamepad axis 1 1.5", "not between -1 and 1"},
        Fault{"$ @at 0 gamepad axis 1 nan", "not between -1 and 1"},
        Fault{"$ @at 0 gamepad pov Up", "'Up' is no direction"},
        Fault{"$ @expect asset axe mounted", "'axe' is no PROJECT/TYPE/CATEGORY/NAME"},
        Fault{"$ @expect asset a/b/c/d", "mounted or missing is missing"},
        Fault{"$ @expect asset a/b/c/d there", "neither mounted nor missing"},
        Fault{"$ @expect layer Night", "active or inactive is missing"},
        Fault{"$ @expect layer Night off", "'off' is neither active nor inactive"},
        Fault{"$ @expect 100 layer", "the layer's name is missing"},
        Fault{"$ @expect 100 layer Night active", "unexpected word 'active'"},
        Fault{"$ @at 0 push 100", "the action's name is missing"},
        Fault{"$ @at 0 push 100 a priority -1", "the priority is out of range"},
        Fault{"$ @at 0 push 100 a first", "unexpected word 'first'"},
        Fault{"$ @expect element doc", "the element's id is missing"},
        Fault{"$ @expect element doc e", "behind an element stands"},
        Fault{"$ @expect element doc e text is x", "behind text or rml stands"},
        Fault{"$ @expect element doc e text containing \"\"", "the empty text"},
        Fault{"$ @expect element doc e style display", "'==' "},
        Fault{"$ @expect element doc e style display == none within 1", "goes with a number"},
        Fault{"$ @expect element doc e no width", "behind 'no' stands"},
        Fault{"$ @expect document doc shown", "'shown' is neither visible"},
        Fault{"$ @at 0 click doc", "the element's id is missing"},
        Fault{"$ @at 0 event doc e", "the element's id is missing"},
        Fault{"$ @at 0 audio statistics 1 2", "the third counter is missing"},
        Fault{"$ @at 0 audio statistics 1 2 4294967296", "out of range"},
        Fault{"$ @at 0 emit m 1 2 3 4", "up to three filters"},
        Fault{"$ @at 0 emit m with x", "'x' is no PARAMETER=VALUE"},
        Fault{"$ @at 0 emit m with =x", "is no PARAMETER=VALUE"},
        Fault{"$ @at 0 emit m with", "PARAMETER=VALUE behind 'with' is missing"},
        Fault{"$ @at 0 emit m with a=1 5", "'5' is no PARAMETER=VALUE"},
        Fault{"$ @at 0 say", "the text of the log line is missing"},
        Fault{"$ @at 0 assetid s", "the asset's name is missing"}, Fault{"$ @players 0", "1 to 4 players"},
        Fault{"$ @players 5", "1 to 4 players"}, Fault{"$ @players", "the number of players is missing"},
        Fault{"$ @expect message m with never", "behind 'with' stands a filter"},
        Fault{"$ @expect message m with", "behind 'with' stands a filter"},
        Fault{"$ @expect log containing a before", "the second text is missing"},
        Fault{"$ @expect bid heal", "'priority' is missing"},
        Fault{"$ @expect bid heal priority 5", "'unarmed' is missing"},
        Fault{"$ @expect bid heal priority high armed", "is no number"},
        Fault{"$ @expect no bid", "the command's name is missing"},
        Fault{"$ @expect 100 offers", "a command or nothing is missing"},
        Fault{"$ @expect 100 offers a icon", "the icon is missing"},
        Fault{"$ @expect 100 offers a priority high", "'high' is no number"},
        Fault{"$ @expect 100 offers nothing for", "an entity's id is missing"},
        Fault{"$ @expect 100 commands a", "'==' stands"}, Fault{"$ @at 0 rightclick", "an entity's id is missing"},
        Fault{"$ @at 0 rightclick 100 x", "'x' is neither an id"},
        Fault{"$ @at 0 command 100", "the command's name is missing"},
        Fault{"$ @at 0 command 100 a 101 refuse", "unexpected word 'refuse'"},
        Fault{"$ @at 0 block", "an entity to block is missing"},
        Fault{"$ @expect order", "the order info's name is missing"},
        Fault{"$ @expect order DLK wheels == 4", "where 'personnel' stands"},
        Fault{"$ @expect order DLK seats == many", "'many' is no number"},
        Fault{"$ @expect order DLK personnel == 4", "where '==' stands"},
        Fault{"$ @expect pool DLK max == 4", "is no id"},
        Fault{"$ @expect pool 0 DLK least == 4", "where 'used' stands"},
        Fault{"$ @expect trigger T callers 100", "where '==' stands"},
        Fault{"$ @expect trigger T target", "an entity's id is missing"},
        Fault{"$ @at 0 variable x 1", "where '=' stands"}, Fault{"$ @at 0 mouse jump", "behind 'mouse'"},
        Fault{"$ @entity x", "is no id"}, Fault{"$ @entity 100 blue", "unexpected word 'blue'"},
        Fault{"$ @entity 100 at 1 2", "the z value is missing"}, Fault{"$ @set 100 X 1", "is no COMPONENT.PROPERTY"},
        Fault{"$ @script", "a path is missing"}, Fault{"$ @script ../x.script", "inside the project"},
        Fault{"$ @script /x.script", "inside the project"}, Fault{"$ @script main.script", "already"},
        Fault{"$ @mod em5", "base project"}, Fault{"$ @mod a/b", "is no name of a project"},
        Fault{"$ @mod other asleep", "neither disabled"}, Fault{"$ @project nowhere", "there is no folder"},
        Fault{"$ @play nowhere", "there is no folder"}, Fault{"$ @language english", "is no language"},
        Fault{"$ @encoding utf7", "is no encoding"}, Fault{"$ @eol lf", "is no line's end"},
        Fault{"$ @game chess", "is no game mode"}, Fault{"$ @maps", "a map's name is missing"},
        Fault{"$ @file a.json\n{}", "'$ @end' is missing"}, Fault{"$ @expect string x == \"open", "not closed"}));

TEST(PlanReader, ATestWithoutExpectationIsAnError) {
  EXPECT_NE(readFaulty("$ @for 2\nInitNewTrigger();\n").text.find("expects nothing"), std::string::npos);
}

const std::string PLAY = "$ @play " + paths::sourceDirectory() + "/examples/harbour\n";

TEST(PlanReader, APlayedProjectBringsItsMap) {
  const TestPlan played = readGood(PLAY + EXPECTATION);
  EXPECT_TRUE(played.playsProject());
  EXPECT_TRUE(played.projects.front().scripts.empty());
  EXPECT_EQ(played.map, "harbour/map/harbour/harbour");
  EXPECT_EQ(readGood("$ @map a/map/b/c\n" + PLAY + EXPECTATION).map, "a/map/b/c");
}

TEST(PlanReader, ATestThatPlaysAProjectHoldsDirectivesOnly) {
  for (const std::string& line :
       std::vector<std::string>{"InitEffects();", "$ @mode MAP_STARTUP", "$ @encoding cp1252", "$ @script x.script",
                                "$ @play " + paths::sourceDirectory()}) {
    const PlanFault fault = readFaulty("$ A comment.\n\n" + EXPECTATION + PLAY + line + "\n");
    EXPECT_EQ(fault.line, 5) << fault.text;
  }
}

TEST(PlanReader, AllFaultsAreTold) { EXPECT_EQ(readPlan("t", "$ @a\n$ @b\n" + EXPECTATION).faults.size(), 2u); }

}

}
