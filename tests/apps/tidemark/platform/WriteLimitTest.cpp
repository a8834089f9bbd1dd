#include "apps/tidemark/platform/WriteLimit.h"

#include "apps/tidemark/platform/Platform.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace tidemark::platform {

namespace {

namespace fs = std::filesystem;

class WriteLimit : public testing::Test {
protected:
  WriteLimit() : folder(makeTemporaryDirectory()) {
    fs::create_directory(folder / "in");
    fs::create_directory(folder / "out");
    std::ofstream(folder / "out" / "old") << "old";
  }
  ~WriteLimit() override { fs::remove_all(folder); }
  void SetUp() override {
    if (!canLimitWrites())
      GTEST_SKIP() << "this kernel has no Landlock; nothing but the host's own check limits writes";
  }

  bool canWrite(const fs::path& path) const { return std::ofstream(folder / path).is_open(); }
  bool canRemove(const fs::path& path) const {
    std::error_code fault;
    return fs::remove(folder / path, fault);
  }
  void callLimited(const std::function<void()>& call) const { callWithWriteLimit({(folder / "in").string()}, call); }

  const fs::path folder;
};

TEST_F(WriteLimit, FilesAreMadeChangedAndRemovedBelowTheFoldersOnly) {
  callLimited([&] {
    EXPECT_TRUE(canWrite("in/new"));
    fs::rename(folder / "in/new", folder / "in/newer");
    EXPECT_TRUE(fs::create_directory(folder / "in/sub"));
    EXPECT_TRUE(canWrite("in/sub/new"));
    EXPECT_TRUE(canRemove("in/newer"));
    EXPECT_FALSE(canWrite("out/new"));
    EXPECT_FALSE(canWrite("out/old"));
    EXPECT_FALSE(canRemove("out/old"));
    std::error_code fault;
    fs::rename(folder / "in/sub/new", folder / "out/new", fault);
    EXPECT_TRUE(fault);
    EXPECT_FALSE(fs::create_directory(folder / "out/sub", fault));
  });
  EXPECT_FALSE(fs::exists(folder / "out/new"));
  EXPECT_TRUE(fs::exists(folder / "out/old"));
}

TEST_F(WriteLimit, NoLinkLeadsAroundIt) {
  callLimited([&] {
    fs::create_directory_symlink(folder / "out", folder / "in/way");
    EXPECT_FALSE(canWrite("in/way/new"));
    fs::create_symlink(folder / "out/old", folder / "in/link");
    EXPECT_FALSE(canWrite("in/link"));
  });
}

TEST_F(WriteLimit, ReadingAndOpenFilesAreNotLimited) {
  std::ofstream open(folder / "out" / "open");
  callLimited([&] {
    std::string text;
    std::ifstream(folder / "out/old") >> text;
    EXPECT_EQ(text, "old");
    open << "written" << std::flush;
    EXPECT_TRUE(open.good());
  });
}

TEST_F(WriteLimit, ThreadsOfTheCallAreLimitedAndTheRestOfTheProgramIsNot) {
  callLimited([&] {
    bool written = true;
    std::thread([&] { written = canWrite("out/new"); }).join();
    EXPECT_FALSE(written);
  });
  EXPECT_TRUE(canWrite("out/new"));
}

TEST_F(WriteLimit, WhatTheCallThrowsComesOut) {
  try {
    callLimited([] { throw std::invalid_argument("this"); });
    FAIL();
  } catch (const std::invalid_argument& thrown) {
    EXPECT_STREQ(thrown.what(), "this");
  }
}

TEST_F(WriteLimit, AFolderThatIsMissingIsAFault) {
  bool called = false;
  EXPECT_THROW(callWithWriteLimit({(folder / "nowhere").string()}, [&] { called = true; }), std::system_error);
  EXPECT_FALSE(called);
}

}

}
