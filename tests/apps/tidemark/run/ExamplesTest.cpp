// The projects that a newcomer copies do what their pages say.
#include "apps/tidemark/ProgramFixture.h"
#include "tests/support/Paths.h"

#include <nlohmann/json.hpp>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

class Examples : public Program {
protected:
  static std::string example(const std::string& name) { return paths::sourceDirectory() + "/examples/" + name; }

  /// The mission of the harbour, as the report tells it.
  nlohmann::json playMission(const std::string& seed) const {
    fs::remove_all(folder());
    fs::copy(example("harbour"), folder(), fs::copy_options::recursive);
    const Outcome outcome =
        run({"run", folder(), "--seconds", "30", "--seed", seed, "--report", folder() + "/report.json"});
    EXPECT_EQ(outcome.code, 0) << outcome.output;
    const auto events = nlohmann::json::parse(readAll(folder() + "/report.json"))["events"];
    EXPECT_EQ(events.size(), 1u);
    return events.empty() ? nlohmann::json() : events[0];
  }
};

TEST_F(Examples, TheHarboursMissionSucceedsWithOneSeedAndFailsWithAnother) {
  const nlohmann::json won = playMission("1");
  EXPECT_EQ(won["name"], "Fire at the warehouse");
  EXPECT_EQ(won["state"], "succeeded");
  EXPECT_EQ(won["reason"], "all required objectives are reached");
  EXPECT_EQ(won["objectives"].size(), 4u);
  const nlohmann::json lost = playMission("3");
  EXPECT_EQ(lost["state"], "failed");
  EXPECT_EQ(lost["reason"], "Objects on fire (2 / 2)");
}

TEST_F(Examples, TheSmallestIsTheFirstScriptOfTheReadme) {
  const std::string readme = readAll(paths::sourceDirectory() + "/README.md");
  std::istringstream script(readAll(example("minimal/x64/tidemark/count.script")));
  std::string block;
  int lines = 0;
  for (std::string line; std::getline(script, line); ++lines)
    block += "    " + line + "\n";
  EXPECT_GE(lines, 10);
  EXPECT_NE(readme.find(block), std::string::npos) << "README.md holds another script:\n" << block;
}

}

}
