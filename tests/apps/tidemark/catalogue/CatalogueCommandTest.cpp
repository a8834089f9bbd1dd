#include "tests/apps/tidemark/ProgramFixture.h"

#include <nlohmann/json.hpp>

#include <set>

namespace tidemark {

namespace {

using CatalogueCommand = Program;

TEST_F(CatalogueCommand, TellsAllOfAnEntryByItsName) {
  const Outcome outcome = run({"catalogue", "HasSelectionMouseClickCommand"});
  EXPECT_EQ(outcome.code, 0);
  for (const char* part : {"HasSelectionMouseClickCommand  (condition, Commands)", "default \"no_command\"", "list out",
                           "HasSelectionMouseClickCommand(\"no_command\",\"no_list\");", "Kept as it is:"})
    EXPECT_NE(outcome.output.find(part), std::string::npos) << part << " in\n" << outcome.output;
}

TEST_F(CatalogueCommand, NamesTheNearestEntriesOfOneThatDoesNotExist) {
  const Outcome outcome = run({"catalogue", "SetVarable"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_NE(outcome.output.find("there is no condition or effect 'SetVarable' (did you mean \"SetVariable\""),
            std::string::npos)
      << outcome.output;
}

TEST_F(CatalogueCommand, AsJsonItHoldsEveryEntryWithItsParameters) {
  const Outcome outcome = run({"catalogue", "--format", "json"});
  ASSERT_EQ(outcome.code, 0);
  const auto catalogue = nlohmann::json::parse(outcome.output);
  std::set<std::string> names;
  for (const auto& entry : catalogue) {
    for (const char* member : {"kind", "name", "group", "category", "description", "oddities", "parameters"})
      ASSERT_TRUE(entry.contains(member)) << member << " of " << entry["name"];
    EXPECT_TRUE(names.insert(entry["kind"].get<std::string>() + " " + entry["name"].get<std::string>()).second);
  }
  EXPECT_TRUE(names.contains("condition Timer"));
  EXPECT_TRUE(names.contains("effect UseConditionalBlock"));
  const auto timer = std::ranges::find_if(catalogue, [](const auto& entry) { return entry["name"] == "Timer"; });
  EXPECT_EQ((*timer)["group"], "ScenarioConditions_Brill");
  EXPECT_EQ((*timer)["parameters"][0],
            (nlohmann::json{{"type", "string"},
                            {"name", "Seconds"},
                            {"default", "5"},
                            {"description", "Which time needs to pass until the condition is true"},
                            {"role", "number"},
                            {"words", nlohmann::json::array()}}));
}

TEST_F(CatalogueCommand, ListsAllEntriesByTheLineThatUsesThem) {
  const Outcome outcome = run({"catalogue"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_NE(outcome.output.find("condition  Timer(\"5\");\n"), std::string::npos);
  EXPECT_NE(outcome.output.find("effect     SetVariable(\"var\",\"0\");\n"), std::string::npos);
}

}

}
