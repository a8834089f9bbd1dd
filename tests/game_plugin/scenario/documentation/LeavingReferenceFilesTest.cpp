// When the module leaves its reference files in the working directory.
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/tooling/Tooling.h"

#include <filesystem>

extern "C" script::tooling::Tooling* getTidemarkTooling();

using namespace script;

namespace {

namespace fs = std::filesystem;

/// Plays in the test's own folder, with starts that leave the files as they do in the game.
class LeavingReferenceFiles : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    documentation::wantReferenceFiles(true);
    mBefore = fs::current_path();
    fs::create_directories(folder() + "/work");
    fs::current_path(folder() + "/work");
  }
  void TearDown() override {
    fs::current_path(mBefore);
    ModuleTest::TearDown();
  }

  static std::vector<std::string> filesHere() {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator("."))
      names.push_back(file.path().filename().string());
    std::ranges::sort(names);
    return names;
  }
  static void removeFiles() {
    for (const std::string& name : THREE)
      fs::remove(name);
  }
  static std::string read(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  inline static const std::vector<std::string> THREE = {"TidemarkScripts_Sublime_Complementition_Dictionary.txt",
                                                        "TidemarkScripts_Table_Conditions.html",
                                                        "TidemarkScripts_Table_Effects.html"};
  inline static const std::vector<std::string> NONE = {};

private:
  fs::path mBefore;
};

TEST_F(LeavingReferenceFiles, AStartLeavesThem) {
  load();
  EXPECT_EQ(filesHere(), THREE);
  for (const documentation::ReferenceFile& file : documentation::makeReferenceFiles())
    EXPECT_EQ(read(std::string(file.name)), file.text);
}

TEST_F(LeavingReferenceFiles, AStartReplacesOldOnes) {
  std::ofstream(THREE[0]) << std::string(1'000'000, 'x');
  load();
  EXPECT_EQ(read(THREE[0]), documentation::makeReferenceFiles()[0].text);
}

TEST_F(LeavingReferenceFiles, TheyAreThereBeforeAnyConfigurationIsRead) {
  bool seen = false;
  open();
  session->getQsf().getLogSystem().addListener([&](const qsf::LogSystem::Record& record) {
    if (record.message == "***** MapscriptManager started succesfully *****") seen = filesHere() == THREE;
  });
  session->startup();
  ASSERT_NE(session->getQsf().getPluginSystem().addPlugin(std::make_unique<Plugin>()), nullptr);
  EXPECT_TRUE(seen);
}

TEST_F(LeavingReferenceFiles, AToolThatWantsNoneSaysSoBeforeTheStart) {
  getTidemarkTooling()->switchReferenceFiles(false);
  load();
  EXPECT_EQ(filesHere(), NONE);
}

TEST_F(LeavingReferenceFiles, TheDebuggersReloadLeavesThemAgain) {
  start();
  removeFiles();
  getTidemarkTooling()->reload();
  EXPECT_EQ(filesHere(), THREE);
}

TEST_F(LeavingReferenceFiles, TheEditorsReloadDoesNot) {
  load(em5::HostSession::Kind::EDITOR);
  EXPECT_EQ(filesHere(), THREE);
  removeFiles();
  emit("script::ForceHotReload_EditorOnly");
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 2);
  EXPECT_EQ(filesHere(), NONE);
}

TEST_F(LeavingReferenceFiles, AStartGoesOnWithoutAPlaceForThem) {
  for (const std::string& name : THREE)
    fs::create_directory(name);
  load();
  EXPECT_NE(MapScriptManager::get(), nullptr);
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 1);
  for (const auto& [severity, message] : log)
    EXPECT_LE(severity, 2) << message;
}

TEST_F(LeavingReferenceFiles, ToolsGetThemWithoutAHost) {
  const auto files = getTidemarkTooling()->getReferenceFiles();
  ASSERT_EQ(files.size(), 3u);
  for (std::size_t i = 0; i < files.size(); ++i) {
    EXPECT_EQ(files[i].name, THREE[i]);
    EXPECT_EQ(files[i].text, documentation::makeReferenceFiles()[i].text);
  }
  EXPECT_EQ(filesHere(), NONE);
}

}
