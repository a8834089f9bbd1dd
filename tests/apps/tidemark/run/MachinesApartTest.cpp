#include "apps/tidemark/run/MachinesApart.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

Json trigger(const std::string& name, unsigned int line, unsigned int fired, unsigned int mode) {
  return {{"name", name}, {"line", line}, {"fired", fired}, {"multiplayerMode", mode}, {"hash", line * 100}};
}

Json entry(const std::string& name, const Json& value) { return {{"name", name}, {"value", value}}; }

Json stores(const Json& variables) {
  return {{"variables", variables}, {"strings", Json::array()}, {"bools", Json::array()}, {"lists", Json::array()}};
}

Json report(const Json& triggers, const Json& variables = Json::array(), const Json& global = Json::array()) {
  return {{"scripts",
           {{{"project", "mod"},
             {"key", "day"},
             {"path", "/mod/day.script"},
             {"triggers", triggers},
             {"stores", stores(variables)}}}},
          {"global", stores(global)},
          {"hints", Json::array()},
          {"instructions", Json::array()}};
}

TEST(MachinesApart, MachinesThatAreAlikeAreNotApart) {
  const Json one = report(Json::array({trigger("A", 3, 2, 2)}), Json::array({entry("x", 1)}));
  EXPECT_TRUE(findMachinesApart({one, one}).empty());
  EXPECT_NE(toText(findMachinesApart({one, one})).find("nowhere"), std::string::npos);
}

TEST(MachinesApart, ATriggerThatFiredHereAndNotThereIsToldWithTheModeThatWouldRunIt) {
  const auto apart = findMachinesApart({report(Json::array({trigger("A", 3, 2, 0), trigger("B", 9, 1, 2)})),
                                        report(Json::array({trigger("A", 3, 0, 0), trigger("B", 9, 5, 2)})),
                                        report(Json::array({trigger("A", 3, 0, 0), trigger("B", 9, 1, 2)}))});
  ASSERT_EQ(apart.size(), 1u) << "how often is each machine's own";
  EXPECT_EQ(apart[0].kind, "trigger");
  EXPECT_EQ(apart[0].script, "day.script");
  EXPECT_EQ(apart[0].line, 3u);
  EXPECT_EQ(apart[0].name, "A");
  EXPECT_EQ(apart[0].text, "fired 2 times on machine 0, never on machines 1 and 2");
  EXPECT_NE(apart[0].advice.find("MP_Run_Independend would have run it on each machine"), std::string::npos);
}

TEST(MachinesApart, StoresThatDifferAreToldOnce) {
  const auto apart =
      findMachinesApart({report(Json::array(), Json::array({entry("x", 1)}), Json::array({entry("g", 4)})),
                         report(Json::array(), Json::array({entry("x", 2)}), Json::array())});
  ASSERT_EQ(apart.size(), 2u);
  EXPECT_EQ(apart[0].script, "") << "global entries come first";
  EXPECT_EQ(apart[0].text, "4 on machine 0, missing on machine 1");
  EXPECT_EQ(apart[1].name, "x");
  EXPECT_EQ(apart[1].text, "1 on machine 0, 2 on machine 1");
}

TEST(MachinesApart, InstructionsThatNobodyTookAndListsThatWereCutAreTold) {
  Json host = report(Json::array({trigger("A", 3, 1, 1)}));
  Json client = report(Json::array({trigger("A", 3, 1, 1)}));
  host["instructions"] =
      Json::array({Json{{"hash", 300}, {"sent", 0}, {"lost", 2}}, Json{{"hash", 77}, {"sent", 0}, {"lost", 1}}});
  client["hints"] = Json::array(
      {Json{{"kind", "network"}, {"script", "day.script"}, {"line", 3}, {"trigger", "A"}, {"text", "a list"}}});
  const auto apart = findMachinesApart({host, client});
  ASSERT_EQ(apart.size(), 3u);
  EXPECT_EQ(apart[0].name, "trigger with the hash 77");
  EXPECT_EQ(apart[1].name, "A");
  EXPECT_EQ(apart[1].text, "2 sent in vain on machine 0, fine or not sent on machine 1");
  EXPECT_EQ(apart[2].kind, "hint");
  EXPECT_EQ(apart[2].text, "a list, on machine 1");
}

}

}
