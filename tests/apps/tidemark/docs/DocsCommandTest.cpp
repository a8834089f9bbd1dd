#include "apps/tidemark/docs/ExampleLine.h"
#include "apps/tidemark/docs/ReferencePage.h"
#include "tests/apps/tidemark/ProgramFixture.h"
#include "tests/support/HtmlDocument.h"

#include <nlohmann/json.hpp>

#include <map>
#include <set>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

const std::vector<std::string> GAME_FILES = {"TidemarkScripts_Sublime_Complementition_Dictionary.txt",
                                             "TidemarkScripts_Table_Conditions.html",
                                             "TidemarkScripts_Table_Effects.html"};

std::vector<std::string> filesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(folder))
    names.push_back(file.path().filename().string());
  std::ranges::sort(names);
  return names;
}

class DocsCommand : public Program {
protected:
  /// Writes the reference below the test's folder and gives the folder.
  fs::path writeDocs() const {
    const fs::path target = fs::path(folder()) / "a" / "reference";
    const Outcome outcome = run({"docs", target.string()});
    EXPECT_EQ(outcome.code, 0) << outcome.output;
    return target;
  }
  nlohmann::json catalogue() const { return nlohmann::json::parse(run({"catalogue", "--format", "json"}).output); }
};

TEST_F(DocsCommand, WritesFiveFilesIntoAFolderThatItMakes) {
  const fs::path target = fs::path(folder()) / "new" / "reference";
  const Outcome outcome = run({"docs", target.string()});
  EXPECT_EQ(outcome.code, 0);
  std::string expected;
  for (const char* name : {"reference.html", "catalogue.json", "TidemarkScripts_Sublime_Complementition_Dictionary.txt",
                           "TidemarkScripts_Table_Conditions.html", "TidemarkScripts_Table_Effects.html"})
    expected += (target / name).string() + "\n";
  EXPECT_EQ(outcome.output, expected);
  EXPECT_EQ(filesIn(target).size(), 5u);
}

TEST_F(DocsCommand, TheCatalogueIsTheOneOfTheCatalogueCommand) {
  EXPECT_EQ(readAll(writeDocs() / "catalogue.json"), run({"catalogue", "--format", "json"}).output);
}

TEST_F(DocsCommand, TheGamesFilesAreThoseThatARunLeaves) {
  const fs::path target = writeDocs();
  writeProject(BEAT);
  EXPECT_EQ(run({"run", folder(), "--seconds", "0", "--write-docs"}).code, 0);
  for (const std::string& name : GAME_FILES) {
    EXPECT_FALSE(readAll(target / name).empty());
    EXPECT_EQ(readAll(fs::path(folder()) / name), readAll(target / name)) << name;
  }
}

TEST_F(DocsCommand, ARunLeavesNoFilesThatNobodyAskedFor) {
  writeProject(BEAT);
  const std::vector<std::string> before = filesIn(folder());
  EXPECT_EQ(run({"run", folder(), "--seconds", "0.1"}).code, 0);
  EXPECT_EQ(filesIn(folder()), before);
}

TEST_F(DocsCommand, ReplacesWhatWasThere) {
  write("reference.html", std::string(3'000'000, 'x'));
  EXPECT_EQ(run({"docs", folder()}).code, 0);
  EXPECT_TRUE(readAll(fs::path(folder()) / "reference.html").ends_with("</html>\n"));
}

TEST_F(DocsCommand, IsWrongUsageWithoutAFolder) {
  EXPECT_EQ(run({"docs"}).code, 2);
  EXPECT_EQ(run({"docs", ""}).code, 2);
}

TEST_F(DocsCommand, AFileInThePlaceOfTheFolderIsTold) {
  const Outcome outcome = run({"docs", write("taken", "x")});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("taken can't be made a folder"), std::string::npos) << outcome.output;
}

TEST_F(DocsCommand, WhatCannotBeWrittenIsToldBeforeAnythingIs) {
  write("reference.html", "old");
  write("TidemarkScripts_Table_Effects.html/file", "in the way");
  const Outcome outcome = run({"docs", folder()});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("TidemarkScripts_Table_Effects.html can't be written"), std::string::npos)
      << outcome.output;
  EXPECT_EQ(readAll(fs::path(folder()) / "reference.html"), "old");
  EXPECT_EQ(filesIn(folder()), (std::vector<std::string>{"TidemarkScripts_Table_Effects.html", "reference.html"}));
}

/// The article of each entry on the reference page.
std::multimap<std::string, const html::Node*> articlesOf(const html::Node& page) {
  std::multimap<std::string, const html::Node*> articles;
  for (const html::Node* article : html::findAll(page, "article"))
    articles.emplace(article->attribute("id"), article);
  return articles;
}

bool shows(const html::Node& node, const std::string& text) {
  return html::withoutBlanks(html::textOf(node)).find(html::withoutBlanks(text)) != std::string::npos;
}

TEST_F(DocsCommand, ThePageTellsAllOfEachEntryOnce) {
  const html::Node page = html::parse(readAll(writeDocs() / "reference.html"));
  const auto articles = articlesOf(page);
  const nlohmann::json all = catalogue();
  EXPECT_EQ(articles.size(), all.size());
  for (const auto& entry : all) {
    const std::string name = entry["name"];
    ASSERT_EQ(articles.count(name), 1u) << name;
    const html::Node& article = *articles.find(name)->second;
    EXPECT_EQ(article.attribute("class"), entry["kind"]);
    const auto rows = html::findAll(*html::findAll(article, "header").front(), "h3");
    EXPECT_EQ(html::withoutBlanks(html::textOf(*rows.front())), name);
    for (const auto& oddity : entry["oddities"])
      EXPECT_TRUE(shows(article, oddity)) << name << ": " << oddity;
    const auto bodies = html::findAll(article, "tbody");
    ASSERT_EQ(bodies.size(), entry["parameters"].empty() ? 0u : 1u) << name;
    if (bodies.empty()) continue;
    const auto parameters = html::findAll(*bodies.front(), "tr");
    ASSERT_EQ(parameters.size(), entry["parameters"].size()) << name;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      const auto& expected = entry["parameters"][i];
      EXPECT_EQ(html::withoutBlanks(html::textOf(*html::findAll(*parameters[i], "th").front())),
                html::withoutBlanks(expected["name"]));
      EXPECT_TRUE(shows(*parameters[i], expected["default"])) << name << " " << expected["name"];
      EXPECT_EQ(html::findAll(*parameters[i], "span").back()->attribute("title"), expected["role"]);
      for (const auto& word : expected["words"])
        EXPECT_TRUE(shows(*parameters[i], word)) << name << " " << word;
    }
  }
}

TEST_F(DocsCommand, ThePagesContentsLeadToEachEntryAndCategory) {
  const html::Node page = html::parse(readAll(writeDocs() / "reference.html"));
  std::multiset<std::string> ids;
  html::visit(page, [&](const html::Node& node) {
    if (!node.attribute("id").empty()) ids.insert(node.attribute("id"));
  });
  for (const std::string& id : ids)
    EXPECT_EQ(ids.count(id), 1u) << id;
  std::set<std::string> led;
  for (const html::Node* link : html::findAll(*html::findAll(page, "nav").front(), "a")) {
    const std::string target = link->attribute("href");
    EXPECT_TRUE(led.insert(target).second) << target;
    EXPECT_TRUE(ids.contains(target.substr(1))) << target;
  }
  std::set<std::string> categories;
  for (const auto& entry : catalogue()) {
    EXPECT_TRUE(led.contains("#" + entry["name"].get<std::string>()));
    categories.insert(entry["category"]);
  }
  EXPECT_EQ(led.size(), catalogue().size() + categories.size());
}

TEST_F(DocsCommand, ThePageAsksForNothing) {
  const html::Node page = html::parse(readAll(writeDocs() / "reference.html"));
  html::visit(page, [](const html::Node& node) {
    EXPECT_EQ(node.attribute("src"), "") << node.tag;
    const std::string target = node.attribute("href");
    EXPECT_TRUE(target.empty() || target.front() == '#' || target == "data:,") << target;
    EXPECT_FALSE(node.tag == "iframe" || node.tag == "img" || node.tag == "object" || node.tag == "?") << node.tag;
  });
  for (const html::Node* style : html::findAll(page, "style"))
    EXPECT_EQ(html::textOf(*style).find("url("), std::string::npos);
}

TEST_F(DocsCommand, EachEntryShowsALineOfATest) {
  const html::Node page = html::parse(readAll(writeDocs() / "reference.html"));
  for (const auto& [name, article] : articlesOf(page)) {
    const auto examples = html::findAll(*article, "figure");
    ASSERT_EQ(examples.size(), 1u) << name << " is used by no script test";
    EXPECT_TRUE(shows(*examples.front(), name + "(")) << name;
  }
}

TEST_F(DocsCommand, EachRoleIsToldInWords) {
  for (const auto& entry : catalogue())
    for (const auto& parameter : entry["parameters"])
      EXPECT_NE(docs::textOfRole(parameter["role"].get<std::string>()), "")
          << "RoleTexts.cpp has no words for the role '" << parameter["role"] << "'";
}

TEST(ExampleLine, IsTheOneWithTheMostArgumentsThatMeanSomething) {
  const docs::ExampleLine* example = docs::findExample("SetVariable", 2);
  ASSERT_NE(example, nullptr);
  EXPECT_EQ(example->arguments, 2u);
  EXPECT_TRUE(example->line.starts_with("SetVariable(")) << example->line;
  EXPECT_TRUE(example->test.starts_with("effects/variables/SetVariable/")) << example->test;
  EXPECT_EQ(docs::findExample("SetVariable", 0)->arguments, 0u);
  EXPECT_EQ(docs::findExample("NobodyUsesThis", 2), nullptr);
}

TEST(ReferencePage, EscapesWhatTheCatalogueSays) {
  catalogue::Entry entry;
  entry.kind = catalogue::Entry::Kind::EFFECT;
  entry.name = "Odd";
  entry.description = "a < b & \"c\"<br>\tnext";
  entry.oddities = {"<script>"};
  catalogue::Parameter parameter;
  parameter.index = 1;
  parameter.type = "string";
  parameter.name = "<b>";
  parameter.defaultValue = "it's \xE4\"<i>";
  parameter.role = "raw text";
  entry.parameters = {parameter};
  const std::string page = docs::toPage({entry});
  EXPECT_NE(page.find("<p class=\"what\">a &lt; b &amp; &quot;c&quot;\n\tnext</p>"), std::string::npos) << page;
  EXPECT_NE(page.find("<th scope=\"row\">&lt;b&gt;</th>"), std::string::npos);
  EXPECT_NE(page.find("<li>&lt;script&gt;</li>"), std::string::npos);
  EXPECT_NE(page.find("<h2 id=\"category-\">Without a category</h2>"), std::string::npos);
  EXPECT_NE(page.find("it's ä"), std::string::npos) << "bytes of the code page become UTF-8";
}

TEST(ReferencePage, CategoriesAndEntriesAreInTheOrderOfTheirNames) {
  catalogue::Entries entries(5);
  entries[0].name = "b";
  entries[1].name = "A";
  entries[2].name = "z", entries[2].category = "Units";
  entries[3].name = "c", entries[3].category = "actions";
  entries[4].name = "a2", entries[4].category = "Units";
  const std::string page = docs::toPage(entries);
  std::size_t last = 0;
  for (const char* id : {"category-actions", "c", "category-Units", "a2", "z", "category-", "A", "b"}) {
    const std::size_t at = page.find("id=\"" + std::string(id) + "\"");
    ASSERT_NE(at, std::string::npos) << id;
    EXPECT_GT(at, last) << id;
    last = at;
  }
}

}

}
