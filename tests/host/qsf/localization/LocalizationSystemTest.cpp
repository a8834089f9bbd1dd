#include "qsf/localization/LocalizationSystem.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/LoadError.h"
#include "qsf/log/LogSystem.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace {

class LocalizationSystemTest : public testing::Test {
protected:
  LocalizationSystemTest() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder = std::filesystem::path(testing::TempDir()) /
             ("tidemark_texts_" + std::to_string(::getpid()) + "_" + std::string(test->name()));
    host.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      lines.push_back(std::to_string(record.severity) + " " + std::string(record.message));
    });
  }
  ~LocalizationSystemTest() override { std::filesystem::remove_all(folder); }

  void write(const std::string& file, const std::string& text) const {
    std::filesystem::create_directories((folder / file).parent_path());
    std::ofstream(folder / file) << text;
  }
  void mount(const std::string& project) {
    write(project + "/project.json", "{\"name\": \"" + project + "\"}");
    host.getProjectManager().registerSingleProjectFromFileSystem((folder / project).string());
  }
  qsf::LocalizationSystem& texts() const { return host.getLocalizationSystem(); }

  qsf::Qsf host;
  std::filesystem::path folder;
  std::vector<std::string> lines;
};

TEST_F(LocalizationSystemTest, StartsInEnglishWithoutTexts) {
  EXPECT_EQ(texts().getLanguage(), "en");
  EXPECT_EQ(texts().translate("ID_HELLO"), "ID_HELLO");
  EXPECT_EQ(texts().findText("ID_HELLO"), nullptr);
}

TEST_F(LocalizationSystemTest, ReadsTheTextsOfTheLanguageFromTheProjects) {
  write("one/text/en/a.json", R"({"ID_HELLO": "Hello", "ID_BOTH": "a"})");
  write("one/text/en/b.json", R"({"ID_BOTH": "b"})");
  write("one/text/de/a.json", "{\"ID_HELLO\": \"Gr\xC3\xBC\xC3\x9F Gott\"}");
  mount("one");
  texts().reload();
  EXPECT_EQ(texts().translate("ID_HELLO"), "Hello");
  EXPECT_EQ(texts().translate("ID_BOTH"), "b"); // files by name, the last one wins
  EXPECT_TRUE(texts().setLanguage("de"));
  EXPECT_EQ(texts().getLanguage(), "de");
  EXPECT_EQ(texts().translate("ID_HELLO"), "Gr\xC3\xBC\xC3\x9F Gott");
  EXPECT_EQ(texts().translate("ID_BOTH"), "ID_BOTH"); // not left over from the other language
}

TEST_F(LocalizationSystemTest, TheProjectMountedLastWins) {
  write("one/text/en/z.json", R"({"ID": "one"})");
  write("two/text/en/a.json", R"({"ID": "two"})");
  mount("one");
  mount("two");
  texts().reload();
  EXPECT_EQ(texts().translate("ID"), "two");
}

TEST_F(LocalizationSystemTest, AnUnknownLanguageIsTakenOnlyByForce) {
  write("one/text/en/a.json", R"({"ID": "text"})");
  mount("one");
  texts().reload();
  for (const std::string language : {"xx", "", ".", "..", "../text/en", "en/../en"}) {
    EXPECT_FALSE(texts().setLanguage(language)) << language;
    EXPECT_EQ(texts().getLanguage(), "en");
    EXPECT_EQ(texts().translate("ID"), "text");
  }
  EXPECT_TRUE(texts().setLanguage("xx", true));
  EXPECT_EQ(texts().getLanguage(), "xx");
  EXPECT_EQ(texts().translate("ID"), "ID");
}

TEST_F(LocalizationSystemTest, AContextChoosesTheTextFirst) {
  write("one/text/en/a.json", R"({"open": "Open", "door::open": "Open the door"})");
  mount("one");
  texts().reload();
  EXPECT_EQ(texts().translateByContextString("door", "open"), "Open the door");
  EXPECT_EQ(texts().translateByContextString("window", "open"), "Open");
  EXPECT_EQ(texts().translateByContextString("window", "shut"), "shut");
}

TEST_F(LocalizationSystemTest, AFaultyFileIsNamedAndLeavesEverythingAsItWas) {
  write("one/text/en/a.json", R"({"ID": "text"})");
  write("one/text/de/broken.json", "{\"ID\": ");
  write("one/text/fr/number.json", R"({"ID": "texte", "ID_NUMBER": 5})");
  write("one/text/pl/list.json", "[]");
  mount("one");
  texts().reload();
  for (const auto& [language, part] :
       {std::pair<std::string, std::string>{"de", "broken.json"}, {"fr", "/ID_NUMBER"}, {"pl", "list.json"}}) {
    lines.clear();
    EXPECT_FALSE(texts().setLanguage(language));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0][0], '4');
    EXPECT_NE(lines[0].find(part), std::string::npos) << lines[0];
    EXPECT_EQ(texts().getLanguage(), "en");
    EXPECT_EQ(texts().translate("ID"), "text");
  }
  write("one/text/en/b.json", "nonsense");
  EXPECT_THROW(texts().reload(), qsf::LoadError);
  EXPECT_EQ(texts().translate("ID"), "text");
}

}
