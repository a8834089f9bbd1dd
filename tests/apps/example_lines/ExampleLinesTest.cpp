#include "apps/example_lines/ExampleLines.h"

#include "apps/tidemark/platform/Platform.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tidemark::examples {

namespace {

namespace fs = std::filesystem;

class ExampleLines : public testing::Test {
protected:
  ~ExampleLines() override { fs::remove_all(mFolder); }
  void write(const std::string& path, const std::string& text) const {
    fs::create_directories((mFolder / path).parent_path());
    std::ofstream(mFolder / path, std::ios::binary) << text;
  }
  const fs::path& folder() const { return mFolder; }
  std::vector<std::string> texts() const {
    std::vector<std::string> result;
    for (const Line& line : collect(mFolder).lines)
      result.push_back(line.text);
    return result;
  }

private:
  fs::path mFolder = platform::makeTemporaryDirectory();
};

using Texts = std::vector<std::string>;

TEST_F(ExampleLines, TellWhatTheirTestShows) {
  write("effects/Sail/Sails.script",
        "$ Sails away.\nInitNewTrigger(\"T\");\nInitEffects();\n\t  Sail(\"10\", \"west\");\n");
  EXPECT_EQ(collect(folder()).lines,
            (std::vector<Line>{{"Sail", 2, "Sail(\"10\", \"west\");", "Sails away.", "effects/Sail/Sails.script"}}));
}

TEST_F(ExampleLines, ThereIsOneForEachNumberOfArguments) {
  write("Sail/A.script", "InitEffects();\nSail();\nSail(\"1\");\nSail(\"1\", \"2\");\nSail(\"3\", \"4\");\n");
  EXPECT_EQ(texts(), (Texts{"Sail();", "Sail(\"1\");", "Sail(\"1\", \"2\");"}));
}

TEST_F(ExampleLines, ATestOfTheEntryItselfIsBetter) {
  write("A/Other.script", "InitEffects();\nSail(\"1\");\n");
  write("Sail/Own.script", "InitEffects();\nSail(\"a longer one\");\n");
  EXPECT_EQ(texts(), (Texts{"Sail(\"a longer one\");"}));
}

TEST_F(ExampleLines, ATestOfAFaultIsWorse) {
  write("Sail/A.script", "InitEffects();\nSail(\"weast\");\n$ @expect hint containing \"weast\"\n");
  write("Sail/B.script", "InitEffects();\nSail(\"wrong\");\n$ @expect log ERROR \"no wind\"\n");
  write("Sail/C.script", "InitEffects();\nSail(\"the right way\");\n");
  EXPECT_EQ(texts(), (Texts{"Sail(\"the right way\");"}));
}

TEST_F(ExampleLines, ANegatedConditionIsShownIfThereIsNoOther) {
  write("IsWet/A.script", "!IsWet(\"boat\");\n");
  EXPECT_EQ(texts(), (Texts{"!IsWet(\"boat\");"}));
  write("IsWet/B.script", "IsWet(\"the other boat\");\n");
  EXPECT_EQ(texts(), (Texts{"IsWet(\"the other boat\");"}));
}

TEST_F(ExampleLines, CommentsAndOtherBytesAreNone) {
  write("Sail/A.script",
        "InitEffects();\n$ Sail(\"1\");\nSail(\"\xA7x\");\nSail(\"" + std::string(200, 'x') + "\");\n");
  EXPECT_EQ(texts(), Texts{});
}

TEST_F(ExampleLines, ADirectiveIsNoPurpose) {
  write("Sail/A.script", "$ @for 2\nInitEffects();\nSail();\n");
  EXPECT_EQ(collect(folder()).lines.at(0).shows, "");
}

TEST_F(ExampleLines, DependOnAllScriptsAndFolders) {
  write("a/b/S.script", "");
  write("a/other.txt", "");
  std::vector<fs::path> inputs = collect(folder()).inputs;
  std::ranges::sort(inputs);
  EXPECT_EQ(inputs, (std::vector<fs::path>{folder(), folder() / "a", folder() / "a/b", folder() / "a/b/S.script"}));
  EXPECT_EQ(toRule("out put", {"/x y", "/a$b"}), "out\\ put: \\\n  /x\\ y \\\n  /a$$b\n");
}

TEST_F(ExampleLines, BecomeTextsOfCpp) {
  const std::string source = toSource({{"Sail", 1, "Sail(\"a\\b\");", "", "Sail/A.script"}});
  EXPECT_NE(source.find("{\"Sail\", 1, \"Sail(\\\"a\\\\b\\\");\",\n     \"\",\n     \"Sail/A.script\"},"),
            std::string::npos)
      << source;
}

}

}
