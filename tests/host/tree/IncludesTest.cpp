// The arrows between the layers and folders of this tree, read from its includes.
#include "host/tree/Includes.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

using includes::Circle;
using includes::Include;
using includes::Rule;

// What holds. A rule more is a line more; docs/architecture.md tells the reasons.
const Rule RULES[] = {
    // The engine knows nothing of the game on top of it. Its windows show documents; its headers name them only.
    {"host/src/qsf",
     {"host/src/em5/", "host/include/em5/", "em5/", "host/src/Rocket/", "Rocket/"},
     {"host/include/Rocket/"}},
    {"host/include/qsf", {"host/src/", "host/include/em5/", "em5/", "host/include/Rocket/", "Rocket/"}},
    // Documents are a library by themselves.
    {"host/src/Rocket",
     {"host/src/qsf/", "host/src/em5/", "host/include/qsf/", "host/include/em5/", "qsf/", "em5/"},
     {"host/include/qsf/Export.h"}},
    {"host/include/Rocket",
     {"host/src/", "host/include/qsf/", "host/include/em5/", "qsf/", "em5/"},
     {"host/include/qsf/Export.h"}},
    // The host stands in for the game and knows nothing of scripts; its headers are enough by themselves.
    {"host", {"game_plugin/", "apps/", "tests/", "bench/"}},
    {"host/include", {"host/src/"}},
    // Of ours, the module includes the host's public headers only: it compiles with another host that has them.
    {"game_plugin", {"apps/", "tests/", "bench/", "host/src/", "host/"}, {"host/include/"}},
    // The program looks into the module through two doors, and into the host through its public headers.
    {"apps", {"game_plugin/"}, {"game_plugin/tooling/", "game_plugin/syntax/"}},
    {"apps", {"host/", "tests/", "bench/"}, {"host/include/"}},
    // Words and numbers of the language are what they are, whatever is on the map.
    {"game_plugin/scenario/language",
     {"host/include/qsf/map/", "host/include/qsf/component/", "host/include/qsf/Qsf.h", "host/include/em5/map/",
      "host/include/em5/component/", "game_plugin/"},
     {"game_plugin/scenario/language/"}},
    // A script's text is read without a host and without the module.
    {"game_plugin/syntax", {"host/", "qsf/", "em5/", "Rocket/", "game_plugin/"}, {"game_plugin/syntax/"}},
};

// Below these, folders don't include each other in a circle.
const std::vector<std::string> WITHOUT_CIRCLES = {
    "host/include/em5",
    "game_plugin/scenario",
};

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines)
    text += "\n  " + line;
  return text;
}

std::string described(const Circle& circle) {
  std::string text;
  for (const std::string& arrow : circle.arrows)
    text += "\n  " + arrow;
  return text;
}

const std::vector<Include>& ours() {
  static const std::vector<Include> all =
      includes::readIncludes(paths::sourceDirectory(), {"host", "game_plugin", "apps"});
  return all;
}

TEST(Includes, GoOneWayBetweenTheLayers) {
  ASSERT_GT(ours().size(), 1000u) << "the sources were not found";
  for (const Rule& rule : RULES) {
    const std::vector<std::string> offences = includes::findOffences(ours(), rule);
    EXPECT_TRUE(offences.empty()) << "below " << rule.from << ":" << joined(offences);
  }
}

TEST(Includes, HaveNoCirclesOfFolders) {
  for (const std::string& top : WITHOUT_CIRCLES)
    for (const Circle& circle : includes::findCircles(ours(), top))
      ADD_FAILURE() << "a circle of " << circle.folders.size() << " folders below " << top << ":" << described(circle);
}

/// A tree of our kind with faults in it.
class MadeUpTree : public testing::Test {
protected:
  MadeUpTree() {
    write("host/include/qsf/Qsf.h", "");
    write("host/include/em5/Game.h", "#pragma once\n#include \"qsf/Qsf.h\"\n");
    write("host/src/qsf/Qsf.cpp", "#include \"qsf/Qsf.h\"\n  #  include <em5/Game.h> // why not\n");
    write("game_plugin/a/A.h", "#include \"game_plugin/b/B.h\"\n#include \"qsf/Qsf.h\"\n");
    write("game_plugin/b/B.h", "#include \"game_plugin/c/C.h\"\n// #include <nothing/here.h> is no include\n");
    write("game_plugin/c/C.h", "#include \"game_plugin/a/A.h\"\n#include <vector>\n");
    write("game_plugin/d/D.h", "#include \"game_plugin/a/A.h\"\n");
  }
  ~MadeUpTree() override { std::filesystem::remove_all(mRoot); }

  void write(const std::string& path, const std::string& text) const {
    const std::filesystem::path file = std::filesystem::path(mRoot) / path;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
  }
  std::vector<Include> read() const { return includes::readIncludes(mRoot, {"host", "game_plugin", "no such folder"}); }

private:
  const std::string mRoot =
      (std::filesystem::temp_directory_path() / ("tidemark_includes_" + std::to_string(getpid()))).string();
};

TEST_F(MadeUpTree, AForbiddenArrowIsToldWithFileAndLine) {
  const Rule rule{"host/src/qsf", {"host/include/em5/"}};
  EXPECT_EQ(includes::findOffences(read(), rule),
            std::vector<std::string>{"host/src/qsf/Qsf.cpp:2 includes host/include/em5/Game.h"});
  EXPECT_TRUE(includes::findOffences(read(), {"game_plugin", {"host/include/em5/"}}).empty());
}

TEST_F(MadeUpTree, AnExceptionIsLetThrough) {
  EXPECT_EQ(includes::findOffences(read(), {"game_plugin/a", {"host/"}}).size(), 1u);
  EXPECT_TRUE(includes::findOffences(read(), {"game_plugin/a", {"host/"}, {"host/include/qsf/"}}).empty());
}

TEST_F(MadeUpTree, ACircleIsToldWithItsFoldersAndArrows) {
  const std::vector<Circle> circles = includes::findCircles(read(), "game_plugin");
  ASSERT_EQ(circles.size(), 1u);
  EXPECT_EQ(circles[0].folders, (std::set<std::string>{"game_plugin/a", "game_plugin/b", "game_plugin/c"}));
  EXPECT_EQ(circles[0].arrows,
            (std::set<std::string>{"game_plugin/a -> game_plugin/b (A.h)", "game_plugin/b -> game_plugin/c (B.h)",
                                   "game_plugin/c -> game_plugin/a (C.h)"}));
  EXPECT_TRUE(includes::findCircles(read(), "host").empty());
}

}
