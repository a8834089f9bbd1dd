#include "game_plugin/scenario/hints/ExecutionPoint.h"

#include "game_plugin/ModuleFixture.h"
#include "game_plugin/tooling/Tooling.h"

extern "C" script::tooling::Tooling* getTidemarkTooling();

using namespace script;

namespace {

struct OneTrigger final : ScriptSource {
  explicit OneTrigger(std::string file) : name(std::move(file)) {}
  const std::string& path() const override { return name; }
  std::string_view triggerAt(std::uint32_t line) const override { return line > 1 ? "t" : ""; }
  std::string name;
};

TEST(ExecutionPoint, ScopesNest) {
  const OneTrigger outer("outer"), inner("inner");
  {
    const ExecutionScope first(&outer, 3);
    executionPoint.line = 4;
    {
      const ExecutionScope second(&inner);
      EXPECT_EQ(executionPoint.source, &inner);
      EXPECT_EQ(executionPoint.line, 0u);
      executionPoint.line = 9;
    }
    EXPECT_EQ(executionPoint.source, &outer);
    EXPECT_EQ(executionPoint.line, 4u);
  }
  EXPECT_EQ(executionPoint.source, nullptr);
}

/// Notes which line of which script is at work when a message is logged: "main.script:3 trigger", "nowhere".
class OriginTest : public ModuleTest {
protected:
  void listen() {
    session->getQsf().getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      const auto origin = getTidemarkTooling()->getOrigin();
      mOrigins.emplace_back(record.message, origin ? origin->path.substr(origin->path.rfind('/') + 1) + ":" +
                                                         std::to_string(origin->line) + " " + origin->trigger
                                                   : "nowhere");
    });
  }
  /// Where the messages of that text came from, in order.
  std::vector<std::string> originsOf(const std::string& message) const {
    std::vector<std::string> found;
    for (const auto& [text, origin] : mOrigins)
      if (text == message) found.push_back(origin);
    return found;
  }
  using Origins = std::vector<std::string>;

private:
  std::vector<std::pair<std::string, std::string>> mOrigins;
};

TEST_F(OriginTest, AMessageOfAnEffectIsOfItsLine) {
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"first\",true,false);\nInitEffects();\nDoLogEntry(\"INFO\",\"one\");\n\n"
            "InitNewTrigger(\"second\",true,false);\nDoLogEntry(\"INFO\",\"two\");\nIf();\nThen();\n"
            "DoLogEntry(\"INFO\",\"three\");\nThenEnd();\nDoLogEntry(\"INFO\",\"four\");");
  start();
  listen();
  run(0.1);
  EXPECT_EQ(originsOf("one"), Origins{"main.script:3 first"});
  EXPECT_EQ(originsOf("two"), Origins{"main.script:6 second"});
  EXPECT_EQ(originsOf("three"), Origins{"main.script:9 second"});
  EXPECT_EQ(originsOf("four"), Origins{"main.script:11 second"});
}

TEST_F(OriginTest, AMessageOfAConditionIsOfItsLine) {
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"first\",true,true);\nInitConditions();\nCompareValues(\"1\",\"==\",\"1\");\n"
            "UnitIsSelected(\"77\");\nInitNewTrigger(\"second\",true,true);\nInitEffects();\nIf();\n"
            "UnitIsSelected(\"78\");\nThen();\nThenEnd();\n");
  start();
  listen();
  run(0.05);
  const auto missing = [](int id) {
    return "UnitIsSelected: entity with the id \"" + std::to_string(id) + "\" is not valid. Condition returns false";
  };
  EXPECT_EQ(originsOf(missing(77)), Origins{"main.script:4 first"});
  EXPECT_EQ(originsOf(missing(78)), Origins{"main.script:8 second"});
}

TEST_F(OriginTest, MessagesOfALoadAreOfTheirLines) {
  addScript("main", "MAP_STARTUP", "no command\nInitNewTrigger(\"t\",maybe);\nNoSuch();\n");
  addScript("fault", "MAP_STARTUP", "\nCompareValues();");
  start();
  listen();
  getTidemarkTooling()->reload();
  EXPECT_EQ(originsOf("Command is invalid: no command"), Origins{"main.script:1 "});
  EXPECT_EQ(originsOf("Boolvalue: Active cant be read.|maybe|"), Origins{"main.script:2 t"});
  EXPECT_EQ(originsOf("[MS] Error: Condition NoSuch was not found"), Origins{"main.script:3 t"});
  EXPECT_EQ(originsOf("The script \"" + scriptPath("fault") +
                      "\" can't be used, line 2: invalid vector<T> subscript (the line stands before the first "
                      "InitNewTrigger)"),
            Origins{"fault.script:2 "});
  EXPECT_EQ(originsOf("***** MapscriptManager started succesfully *****"), Origins{"nowhere"});
}

/// The script that starts another is at work again once that has been read.
TEST_F(OriginTest, ALoadInsideAnEffectIsTheOtherScripts) {
  write("mod", "x64/tidemark/other.script",
        "InitNewTrigger(\"o\",true,false);\nno command\nInitEffects();\nDoLogEntry(\"INFO\",\"other\");");
  const std::string other = folder() + "/mod/x64/tidemark/other.script";
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"t\",true,false);\nInitEffects();\nStartScenario(\"" + other +
                "\");\nDoLogEntry(\"INFO\",\"behind\");\n"
                "StartScenario(\"" +
                other + "\");");
  start();
  listen();
  run(0.1);
  const std::string started = "\tMapscriptManager: succesfully initialize new temproray Scenario " + other;
  EXPECT_EQ(originsOf("Command is invalid: no command"), (Origins{"other.script:2 o", "other.script:2 o"}))
      << "read once, and told again when it was shared";
  EXPECT_EQ(originsOf(started), (Origins{"main.script:3 t", "main.script:5 t"}));
  EXPECT_EQ(originsOf("behind"), Origins{"main.script:4 t"});
  EXPECT_EQ(originsOf("other"), (Origins{"other.script:4 o", "other.script:4 o"}));
}

TEST_F(OriginTest, WhatTheGameLogsIsOfNoScript) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,true);\nInitEffects();\nDoLogEntry(\"INFO\",\"tick\");");
  start();
  listen();
  run(0.05);
  session->getQsf().getLogSystem().log(2, "outside");
  session->endGame();
  EXPECT_EQ(originsOf("tick"), Origins{"main.script:3 t"});
  EXPECT_EQ(originsOf("outside"), Origins{"nowhere"});
  EXPECT_EQ(originsOf("DoShutdown Started"), Origins{"nowhere"});
}

TEST_F(OriginTest, AFaultThatEndsATickEndsItsScriptsWork) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,false);\nInitEffects();\nUseConditionalBlock(0,7);");
  start();
  run(0.05);
  EXPECT_TRUE(logged(4, "invalid vector<T> subscript"));
  EXPECT_EQ(executionPoint.source, nullptr);
}

}
