#include "game_plugin/scenario/loading/ProgramCache.h"

#include "qsf/log/FaultCounter.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace script;

namespace {

class ProgramCacheTest : public testing::Test {
protected:
  ProgramCacheTest()
      : folder(std::filesystem::temp_directory_path() /
               ("tidemark_" + std::to_string(getpid()) + "_" +
                testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  ~ProgramCacheTest() override { std::filesystem::remove_all(folder); }

  std::string write(const std::string& name, const std::string& text) {
    std::ofstream(folder / name, std::ios::binary) << text;
    return (folder / name).string();
  }

  const std::filesystem::path folder;
  const LogCapture log;
  ProgramCache cache;
};

TEST_F(ProgramCacheTest, AFileInUseIsReadOnce) {
  const std::string path = write("a", "InitNewTrigger(\"t\");");
  const auto program = cache.load(path, "mod/a");
  EXPECT_EQ(program->triggers().size(), 1u);
  EXPECT_EQ(cache.load(path, "mod/a"), program);
}

TEST_F(ProgramCacheTest, OtherContentIsAnotherProgram) {
  const std::string path = write("a", "InitNewTrigger(\"old\");");
  const auto old = cache.load(path, "mod/a");
  write("a", "InitNewTrigger(\"new\");"); // of the same size
  const auto fresh = cache.load(path, "mod/a");
  EXPECT_NE(fresh, old);
  EXPECT_EQ(fresh->triggers()[0]->name, "new");
  EXPECT_EQ(old->triggers()[0]->name, "old") << "who runs it goes on with it";
  EXPECT_EQ(cache.load(path, "mod/a"), fresh);
}

TEST_F(ProgramCacheTest, EqualContentElsewhereIsAnotherProgram) {
  const std::string text = "InitNewTrigger(\"t\");";
  const std::string path = write("a", text);
  const auto program = cache.load(path, "mod/a");
  EXPECT_NE(cache.load(write("b", text), "mod/a"), program) << "messages name the file";
  const auto temporary = cache.load(path, "");
  EXPECT_NE(temporary, program) << "global names differ";
  EXPECT_EQ(temporary->triggers()[0]->globalName, "/t");
}

TEST_F(ProgramCacheTest, AProgramGoesWithTheLastThatUsesIt) {
  const std::string path = write("a", "InitNewTrigger(\"t\");");
  auto program = cache.load(path, "mod/a");
  const std::weak_ptr<const Program> watched = program;
  auto second = cache.load(path, "mod/a");
  program.reset();
  EXPECT_FALSE(watched.expired());
  second.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_EQ(cache.load(path, "mod/a")->triggers().size(), 1u);
}

TEST_F(ProgramCacheTest, MessagesAreToldAtEachLoad) {
  const std::string path = write("a", "InitNewTrigger(\"t\",maybe);\nNoSuch();\nInitEffects();\nNoSuch();");
  const auto program = cache.load(path, "mod/a");
  const auto first = log.lines;
  ASSERT_EQ(first.size(), 3u);
  EXPECT_EQ(cache.load(path, "mod/a"), program);
  ASSERT_EQ(log.lines.size(), 6u);
  EXPECT_EQ(std::vector(log.lines.begin() + 3, log.lines.end()), first);
}

TEST_F(ProgramCacheTest, DroppedLinesAreThoseOfTheLastReading) {
  const std::string path = write("a", "InitNewTrigger(\"t\");\n NoSuch();");
  const auto program = cache.load(path, "mod/a");
  ASSERT_EQ(cache.droppedLines().size(), 1u);
  EXPECT_EQ(cache.droppedLines().begin()->first, path);
  ASSERT_EQ(cache.droppedLines().at(path).size(), 1u);
  EXPECT_EQ(cache.droppedLines().at(path)[0].line, 2u);
  EXPECT_EQ(cache.droppedLines().at(path)[0].column, 2u);
  write("a", "InitNewTrigger(\"t\");");
  cache.load(path, "mod/a");
  EXPECT_TRUE(cache.droppedLines().empty());
}

TEST_F(ProgramCacheTest, AMissingFileIsAnEmptyProgramWithoutAMessage) {
  EXPECT_TRUE(cache.load((folder / "missing").string(), "p")->triggers().empty());
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(ProgramCacheTest, PathsThatAreNoLongerInUseAreForgotten) {
  const auto loadMany = [&](const std::string& prefix) {
    for (int i = 0; i < 2000; ++i)
      cache.load((folder / (prefix + std::to_string(100'000 + i))).string(), "a prefix that takes some memory");
  };
  loadMany("a");
  const std::size_t before = getLiveBytes();
  for (const char* prefix : {"b", "c", "d", "e", "f"})
    loadMany(prefix);
  EXPECT_LT(getLiveBytes(), before + 100'000) << "of ten thousand paths that were never loaded twice";
}

}
