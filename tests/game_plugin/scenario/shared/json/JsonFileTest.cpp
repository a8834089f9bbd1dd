#include "game_plugin/scenario/shared/json/JsonFile.h"

#include "qsf/Qsf.h"
#include "qsf/base/WritePermission.h"

#include <boost/property_tree/ptree.hpp>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdlib.h>
#include <sys/stat.h>

using namespace script;

namespace {

namespace fs = std::filesystem;
using boost::property_tree::ptree;

class JsonFileTest : public testing::Test {
protected:
  JsonFileTest() {
    std::string pattern = (fs::temp_directory_path() / "tidemark-test-XXXXXX").string();
    folder = fs::canonical(::mkdtemp(pattern.data()));
  }
  ~JsonFileTest() override { fs::remove_all(folder); }

  std::string write(const std::string& text) const {
    std::ofstream(folder / "data.json", std::ios::binary) << text;
    return path();
  }
  std::string path() const { return (folder / "data.json").string(); }
  std::string content() const {
    std::ostringstream text;
    text << std::ifstream(path(), std::ios::binary).rdbuf();
    return text.str();
  }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }
  static std::string faultOf(const std::function<void()>& call) {
    try {
      call();
    } catch (const std::runtime_error& fault) {
      return fault.what();
    }
    return "none";
  }
  std::string faultOfReading(const std::string& text) const {
    const std::string file = write(text);
    return faultOf([&] { (void)readJsonFile(file); });
  }

  fs::path folder;
  const qsf::Qsf host;
};

TEST_F(JsonFileTest, NestingIsBoundedBeforeItIsParsed) {
  EXPECT_EQ(faultOfReading(std::string(MAXIMUM_JSON_DEPTH, '[') + std::string(MAXIMUM_JSON_DEPTH, ']')), "none");
  const std::string reason = path() + " can't be read: it is nested deeper than 512 levels";
  EXPECT_EQ(faultOfReading(std::string(MAXIMUM_JSON_DEPTH + 1, '[') + std::string(MAXIMUM_JSON_DEPTH + 1, ']')),
            reason);
  EXPECT_EQ(faultOfReading(std::string(1'000'000, '[')), reason);
  std::string objects;
  for (int i = 0; i < 200'000; ++i)
    objects += "{\"a\":";
  EXPECT_EQ(faultOfReading(objects), reason);
}

TEST_F(JsonFileTest, ATreeOfTheGreatestDepthIsReadCopiedAndWritten) {
  write(std::string(MAXIMUM_JSON_DEPTH, '[') + std::string(MAXIMUM_JSON_DEPTH, ']'));
  const ptree tree = readJsonFile(path());
  const ptree copy = tree;
  writeJsonFile(path(), copy);
  EXPECT_EQ(faultOf([&] { (void)readJsonFile(path()); }), "none");
}

TEST_F(JsonFileTest, BracketsInTextsAreNoNesting) {
  const JsonExtent extent = measureJson("{\"a[[[\\\"[[\": [1, \"]}{,\", {}]}");
  EXPECT_EQ(extent.depth, 3u);
  EXPECT_EQ(extent.values, 5u);
}

TEST_F(JsonFileTest, SizeAndNumberOfValuesAreBounded) {
  EXPECT_EQ(faultOfReading("\"" + std::string(MAXIMUM_JSON_BYTES, 'x') + "\""),
            path() + " can't be read: it is larger than 16777216 bytes");
  std::string many = "[1";
  for (std::size_t i = 0; i < MAXIMUM_JSON_VALUES; ++i)
    many += ",1";
  EXPECT_EQ(faultOfReading(many + "]"), path() + " can't be read: it holds more than 1000000 values");
}

TEST_F(JsonFileTest, BytesThatAreNoUtf8AreMalformed) {
  EXPECT_EQ(faultOfReading("{\"a\": \"\xC4\"}"), path() + " can't be read: line 1: invalid code sequence");
}

TEST_F(JsonFileTest, WhatIsNoFileIsNotWaitedFor) {
  ASSERT_EQ(::mkfifo(path().c_str(), 0600), 0);
  EXPECT_EQ(faultOf([&] { (void)readJsonFile(path()); }), path() + " can't be read: this is no file");
  EXPECT_EQ(faultOf([&] { writeJsonFile(path(), ptree()); }), path() + " can't be written: this is no file");
  EXPECT_TRUE(fs::is_fifo(path()));
}

TEST_F(JsonFileTest, WritingReplacesTheFileAndLeavesNothingBeside) {
  write("old");
  fs::permissions(path(), fs::perms::owner_read | fs::perms::owner_write);
  ptree tree;
  tree.put("a", "1");
  writeJsonFile(path(), tree);
  EXPECT_EQ(content(), "{\n    \"a\": \"1\"\n}\n");
  EXPECT_EQ(fs::status(path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(filesInFolder(), 1u);
}

// Whoever has the old file open goes on with it whole: the new one has taken its name, not its place.
TEST_F(JsonFileTest, NobodySeesHalfAFile) {
  write("old");
  std::ifstream reader(path());
  ASSERT_EQ(reader.get(), 'o');
  writeJsonFile(path(), ptree());
  std::string rest;
  reader >> rest;
  EXPECT_EQ(rest, "ld");
  EXPECT_EQ(content(), "{\n}\n");
}

TEST_F(JsonFileTest, WhatAnEndedProgramLeftIsNotTouched) {
  std::ofstream(folder / ".tidemark-json-1") << "left";
  writeJsonFile(path(), ptree());
  EXPECT_EQ(content(), "{\n}\n");
  EXPECT_EQ(filesInFolder(), 2u);
}

TEST_F(JsonFileTest, TheFileBehindALinkIsReplaced) {
  fs::create_directory(folder / "real");
  std::ofstream(folder / "real" / "file") << "old";
  fs::create_symlink(folder / "real" / "file", path());
  writeJsonFile(path(), ptree());
  EXPECT_TRUE(fs::is_symlink(path()));
  EXPECT_EQ(content(), "{\n}\n");
  EXPECT_TRUE(fs::is_regular_file(folder / "real" / "file"));
}

TEST_F(JsonFileTest, TheHostIsAskedFirst) {
  qsf::UniqueInstance<qsf::WritePermission>()->limitTo({}, "ask me");
  EXPECT_EQ(faultOf([&] { writeJsonFile(path(), ptree()); }),
            path() + " can't be written: nothing may be written to " + path() + "; ask me");
  EXPECT_EQ(filesInFolder(), 0u);
}

}
