#include "qsf/base/WritePermission.h"

#include "qsf/Qsf.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace {

namespace fs = std::filesystem;

/// A folder with the subfolders `in`, `inner` and `out`, which goes with the test.
class WritePermissionTest : public testing::Test {
protected:
  WritePermissionTest() {
    std::string pattern = (fs::temp_directory_path() / "tidemark-test-XXXXXX").string();
    folder = fs::canonical(::mkdtemp(pattern.data()));
    for (const char* name : {"in", "inner", "out"})
      fs::create_directory(folder / name);
  }
  ~WritePermissionTest() override { fs::remove_all(folder); }

  bool isAllowed(const fs::path& path) const {
    try {
      (void)permission->require(path.string());
      return true;
    } catch (const std::runtime_error& refusal) {
      EXPECT_TRUE(std::string(refusal.what()).ends_with("; ask me")) << refusal.what();
      return false;
    }
  }

  fs::path folder;
  const qsf::Qsf host;
  const qsf::UniqueInstance<qsf::WritePermission> permission;
};

TEST_F(WritePermissionTest, WithoutALimitEveryPathIsFine) {
  EXPECT_EQ(permission->require((folder / "out" / ".." / "x.json").string()), (folder / "x.json").string());
  EXPECT_EQ(permission->require("x.json"), (fs::current_path() / "x.json").string());
}

TEST_F(WritePermissionTest, ALimitHoldsForWhatIsBelowItsFolders) {
  permission->limitTo({(folder / "in").string()}, "ask me");
  EXPECT_TRUE(isAllowed(folder / "in" / "x.json"));
  EXPECT_TRUE(isAllowed(folder / "in" / "deep" / "er" / "x.json"));
  EXPECT_TRUE(isAllowed(folder / "out" / ".." / "in" / "x.json"));
  EXPECT_FALSE(isAllowed(folder / "in")) << "the folder itself";
  EXPECT_FALSE(isAllowed(folder / "x.json"));
  EXPECT_FALSE(isAllowed(folder / "inner" / "x.json")) << "its name only begins like the folder's";
  EXPECT_FALSE(isAllowed(folder / "in" / ".." / "out" / "x.json"));
  EXPECT_FALSE(isAllowed("x.json"));
}

TEST_F(WritePermissionTest, FurtherFoldersAddUpAndNoFolderAllowsNothing) {
  permission->limitTo({(folder / "in").string(), (folder / "out").string()}, "ask me");
  EXPECT_TRUE(isAllowed(folder / "in" / "x"));
  EXPECT_TRUE(isAllowed(folder / "out" / "x"));
  permission->limitTo({}, "ask me");
  EXPECT_FALSE(isAllowed(folder / "in" / "x"));
}

TEST_F(WritePermissionTest, LinksAreFollowed) {
  fs::create_directory_symlink(folder / "out", folder / "in" / "way");
  std::ofstream(folder / "out" / "file") << "x";
  fs::create_symlink(folder / "out" / "file", folder / "in" / "link");
  fs::create_directory_symlink(folder / "in", folder / "out" / "back");
  permission->limitTo({(folder / "in").string()}, "ask me");
  EXPECT_FALSE(isAllowed(folder / "in" / "way" / "x"));
  EXPECT_FALSE(isAllowed(folder / "in" / "link"));
  EXPECT_TRUE(isAllowed(folder / "out" / "back" / "x"));
  permission->limitTo({(folder / "out" / "back").string()}, "ask me");
  EXPECT_TRUE(isAllowed(folder / "in" / "x")) << "a limit's folder may be a link, too";
}

TEST_F(WritePermissionTest, AFolderThatIsMissingLeavesTheLimitAsItWas) {
  permission->limitTo({(folder / "in").string()}, "ask me");
  EXPECT_THROW(permission->limitTo({(folder / "nowhere").string()}, "ask me"), fs::filesystem_error);
  EXPECT_TRUE(isAllowed(folder / "in" / "x"));
  EXPECT_FALSE(isAllowed(folder / "out" / "x"));
}

}
