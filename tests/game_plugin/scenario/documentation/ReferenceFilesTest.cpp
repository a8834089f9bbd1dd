#include "game_plugin/scenario/documentation/ReferenceFiles.h"

#include "game_plugin/scenario/LogCapture.h"
#include "game_plugin/tooling/Catalogue.h"
#include "tests/support/HtmlDocument.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>

using namespace script;
using namespace script::documentation;

namespace {

ParameterDocumentation parameter(std::string_view type, std::string_view name, const std::string& defaultValue,
                                 std::string_view description) {
  ParameterDocumentation result;
  result.type = type;
  result.name = name;
  result.defaultValue = defaultValue;
  result.description = description;
  return result;
}

/// Two conditions of one category, one of another, and two effects between them.
Dictionary someDictionary() {
  return {
      {"IsWet", {parameter("string", "List[in]", "no_list", "Who is asked")}, true, "True if wet<br>or rainy", "Sea"},
      {"Sail", {}, false, "Sails away", "Sea"},
      {"IsDry", {}, true, "", "Sea"},
      {"IsLow",
       {parameter("float", "Metres", "0.5", ""), parameter("bool", "", "true", "Has no name")},
       true,
       "Compares with <",
       "Tide"},
      {"Anchor", {parameter("int", "Number", "-1", "How many")}, false, "Drops anchors", ""}};
}

TEST(ReferenceFiles, SublimeCompletionsAreWrittenToTheByte) {
  EXPECT_EQ(writeSublimeCompletions(someDictionary()),
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"IsWet(...)\",\n"
            "\t\t\t\t\t\t\"contents\": \"IsWet(${1:string List[in] = \\\"no_list\\\"});\"\n"
            "\t\t\t\t},\n"
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"Sail(...)\",\n"
            "\t\t\t\t\t\t\"contents\": \"Sail();\"\n"
            "\t\t\t\t},\n"
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"IsDry(...)\",\n"
            "\t\t\t\t\t\t\"contents\": \"IsDry();\"\n"
            "\t\t\t\t},\n"
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"IsLow(...)\",\n"
            "\t\t\t\t\t\t\"contents\": \"IsLow(${1:float Metres = \\\"0.5\\\"},${2:bool  = \\\"true\\\"});\"\n"
            "\t\t\t\t},\n"
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"Anchor(...)\",\n"
            "\t\t\t\t\t\t\"contents\": \"Anchor(${1:int Number = \\\"-1\\\"});\"\n"
            "\t\t\t\t},\n"
            "\t\t\t\t{\n"
            "\t\t\t\t\t\t\"trigger\": \"Always()\",\n"
            "\t\t\t\t\t\t\"contents\": \"Always();\"\n"
            "\t\t\t\t}\n");
}

TEST(ReferenceFiles, WithoutEntriesAlwaysIsLeft) {
  EXPECT_EQ(writeSublimeCompletions({}), "\t\t\t\t{\n"
                                         "\t\t\t\t\t\t\"trigger\": \"Always()\",\n"
                                         "\t\t\t\t\t\t\"contents\": \"Always();\"\n"
                                         "\t\t\t\t}\n");
  EXPECT_TRUE(
      writeTable({}, TableKind::EFFECTS)
          .ends_with("<body><h1>Effects Summary</h1><table></table><br><br><h1>Effects Detail</h1><br><br></body>"));
}

const std::string HEAD = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<style>\n"
                         "table { width: 100%; border-collapse: collapse; }\n"
                         "th, td { text-align: left; vertical-align: top; padding: 4px; }\n"
                         "tr:nth-child(even) { background-color: #e0e0e0; }\n</style>\n</head>\n";
const std::string COLUMNS = "<table><tr><th width=\"15%\">EffectName/DataType</th><th width=\"10%\">Keywords</th>"
                            "<th width=\"10%\">StandartParameter</th><th width=\"65%\">Description</th></tr>\n";

std::string category(const std::string& name) {
  return "</table>\n<br><br><table><tr style=\"background-color:rgb(206,206,255)\"><td>Category:</td><td>" + name +
         "</td></tr>\n";
}
std::string heading(const std::string& name) {
  return "<br><font color=\"#FF0000\"><b><h2>Current Category: " + name + "</h2></b></font><br><br><br>\n";
}
std::string anchor(const std::string& name) {
  return "<tr><td><a name=\"" + name + "\"><font color=\"#008000\"><b>" + name +
         "</b></font></a></td><td></td><td></td><td>";
}

TEST(ReferenceFiles, TheConditionsTableIsWrittenToTheByte) {
  EXPECT_EQ(writeTable(someDictionary(), TableKind::CONDITIONS),
            HEAD + "<body><h1>Conditions Summary</h1><table>" + category("Sea") +
                "<tr><td>void</td><td><a href=\"#IsWet\">IsWet</a>(string List[in] = \"no_list\");<br>"
                "->True if wet<br>or rainy<br><br>\n</td>"
                "<tr><td>void</td><td><a href=\"#IsDry\">IsDry</a>();<br>-><br><br>\n</td>" +
                category("Tide") +
                "<tr><td>void</td><td><a href=\"#IsLow\">IsLow</a>(float Metres = \"0.5\",bool  = \"true\");<br>"
                "->Compares with <<br><br>\n</td>"
                "</table><br><br><h1>Conditions Detail</h1><br><br>" +
                heading("Sea") + COLUMNS + anchor("IsWet") + "True if wet<br>or rainy</td></tr>\n" +
                "<tr><td>string</td><td>List[in]</td><td>no_list</td><td>Who is asked</td></tr>\n" + anchor("IsDry") +
                "</td></tr>\n</table><br><br>\n\n" + heading("Tide") + COLUMNS + anchor("IsLow") +
                "Compares with <</td></tr>\n<tr><td>float</td><td>Metres</td><td>0.5</td><td></td></tr>\n"
                "<tr><td>bool</td><td></td><td>true</td><td>Has no name</td></tr>\n</table><br><br>\n\n</body>");
}

TEST(ReferenceFiles, TheEffectsTableIsWrittenToTheByte) {
  EXPECT_EQ(writeTable(someDictionary(), TableKind::EFFECTS),
            HEAD + "<body><h1>Effects Summary</h1><table>" + category("Sea") +
                "<tr><td>void</td><td><a href=\"#Sail\">Sail</a>();<br>->Sails away<br><br>\n</td>" + category("") +
                "<tr><td>void</td><td><a href=\"#Anchor\">Anchor</a>(int Number = \"-1\");<br>->Drops anchors"
                "<br><br>\n</td></table><br><br><h1>Effects Detail</h1><br><br>" +
                heading("Sea") + COLUMNS + anchor("Sail") + "Sails away</td></tr>\n</table><br><br>\n\n" + heading("") +
                COLUMNS + anchor("Anchor") + "Drops anchors</td></tr>\n" +
                "<tr><td>int</td><td>Number</td><td>-1</td><td>How many</td></tr>\n</table><br><br>\n\n</body>");
}

TEST(ReferenceFiles, ACategoryThatComesAgainOpensAGroupAgain) {
  Dictionary dictionary = someDictionary();
  dictionary.push_back({"IsDeep", {}, true, "", "Sea"});
  const std::string table = writeTable(dictionary, TableKind::CONDITIONS);
  const std::size_t first = table.find(heading("Sea"));
  EXPECT_NE(table.find(heading("Sea"), first + 1), std::string::npos);
}

TEST(ReferenceFiles, AnUnknownNameIsLoggedAndLeftOut) {
  LogCapture log;
  Dictionary dictionary;
  addToDictionary(dictionary, "Timer");
  addToDictionary(dictionary, "Tmier");
  ASSERT_EQ(dictionary.size(), 1u);
  EXPECT_EQ(dictionary[0].name, "Timer");
  EXPECT_EQ(log.lines, (std::vector<std::pair<int, std::string>>{{4, "Effect of type: Tmier can't be found."},
                                                                 {2, "[MS] Error: AddToDictionary cant find: Tmier"}}));
}

TEST(ReferenceFiles, AnEntryTellsItsParametersInTheOrderOfReading) {
  Dictionary dictionary;
  addToDictionary(dictionary, "SetVariable");
  addToDictionary(dictionary, "Timer");
  ASSERT_EQ(dictionary.size(), 2u);
  EXPECT_FALSE(dictionary[0].isCondition);
  EXPECT_EQ(dictionary[0].category, "Variables");
  ASSERT_EQ(dictionary[0].parameters.size(), 2u);
  EXPECT_EQ(dictionary[0].parameters[0].name, "Variable");
  EXPECT_EQ(dictionary[0].parameters[1].defaultValue, "0");
  EXPECT_TRUE(dictionary[1].isCondition);
  EXPECT_EQ(dictionary[1].parameters[0].type, "string");
}

std::string textOfFile(std::string_view name) {
  for (const ReferenceFile& file : makeReferenceFiles())
    if (file.name == name) return file.text;
  ADD_FAILURE() << "there is no file " << name;
  return "";
}

TEST(ReferenceFiles, AreThree) {
  std::vector<std::string_view> names;
  for (const ReferenceFile& file : makeReferenceFiles())
    names.push_back(file.name);
  EXPECT_EQ(names, (std::vector<std::string_view>{"TidemarkScripts_Sublime_Complementition_Dictionary.txt",
                                                  "TidemarkScripts_Table_Conditions.html",
                                                  "TidemarkScripts_Table_Effects.html"}));
}

/// The places of a snippet, by Sublime Text's rules: numbered from 1, a place ends at the first brace.
std::vector<std::string> placesOf(const std::string& contents) {
  std::vector<std::string> places;
  for (std::size_t at = contents.find("${"); at != std::string::npos; at = contents.find("${", at + 1)) {
    const std::string number = std::to_string(places.size() + 1) + ":";
    EXPECT_EQ(contents.substr(at + 2, number.size()), number) << contents;
    const std::size_t begin = at + 2 + number.size();
    places.push_back(contents.substr(begin, contents.find('}', begin) - begin));
  }
  return places;
}

TEST(ReferenceFiles, SublimeTextReadsTheCompletions) {
  // The file holds what stands between the brackets of a completions file.
  const auto wrapped =
      nlohmann::json::parse("{\"scope\": \"source.tidemark\", \"completions\": [\n" +
                            textOfFile("TidemarkScripts_Sublime_Complementition_Dictionary.txt") + "]}");
  const Dictionary dictionary = makeDictionary();
  const auto& completions = wrapped["completions"];
  ASSERT_EQ(completions.size(), dictionary.size() + 1);
  for (std::size_t i = 0; i < dictionary.size(); ++i) {
    EXPECT_EQ(completions[i].size(), 2u);
    EXPECT_EQ(completions[i]["trigger"], dictionary[i].name + "(...)");
    const std::string contents = completions[i]["contents"];
    EXPECT_TRUE(contents.starts_with(dictionary[i].name + "(") && contents.ends_with(");")) << contents;
    std::vector<std::string> expected;
    for (const ParameterDocumentation& each : dictionary[i].parameters)
      expected.push_back(std::string(each.type) + " " + std::string(each.name) + " = \"" + each.defaultValue + "\"");
    EXPECT_EQ(placesOf(contents), expected) << contents;
  }
  EXPECT_EQ(completions.back(), (nlohmann::json{{"trigger", "Always()"}, {"contents", "Always();"}}));
}

/// What the page shows of a text of the catalogue, whose line breaks are HTML's.
std::string shown(std::string text) {
  constexpr std::string_view LINE_BREAK = "<br>";
  for (std::size_t at = text.find(LINE_BREAK); at != std::string::npos; at = text.find(LINE_BREAK, at))
    text.erase(at, LINE_BREAK.size());
  return html::withoutBlanks(text);
}

using Cells = std::vector<std::string>;

std::multimap<std::string, Cells> expectedRows(tooling::CatalogueEntry::Kind kind) {
  std::multimap<std::string, Cells> rows;
  for (const tooling::CatalogueEntry& entry : tooling::describeCatalogue()) {
    if (entry.kind != kind || entry.name == "UseConditionalBlock") continue;
    rows.emplace(entry.name, Cells{entry.name, "", "", shown(entry.description)});
    for (const tooling::CatalogueParameter& each : entry.parameters)
      rows.emplace(entry.name, Cells{each.type, shown(each.name), shown(each.defaultValue), shown(each.description)});
  }
  return rows;
}

/// Rows of the detail tables, by the entry whose anchor stands above them.
std::multimap<std::string, Cells> detailRows(const html::Node& page) {
  std::multimap<std::string, Cells> rows;
  std::string entry;
  for (const html::Node* row : html::findAll(page, "tr")) {
    const auto cells = html::findAll(*row, "td");
    if (cells.size() != 4) continue; // heads and the summary
    for (const html::Node* anchor : html::findAll(*cells[0], "a"))
      entry = anchor->attribute("name");
    Cells texts;
    for (const html::Node* cell : cells)
      texts.push_back(html::withoutBlanks(html::textOf(*cell)));
    rows.emplace(entry, texts);
  }
  return rows;
}

class ReferenceTables : public testing::TestWithParam<tooling::CatalogueEntry::Kind> {
protected:
  const bool conditions = GetParam() == tooling::CatalogueEntry::Kind::CONDITION;
  const html::Node page = html::parse(
      textOfFile(conditions ? "TidemarkScripts_Table_Conditions.html" : "TidemarkScripts_Table_Effects.html"));
};

INSTANTIATE_TEST_SUITE_P(Both, ReferenceTables,
                         testing::Values(tooling::CatalogueEntry::Kind::CONDITION,
                                         tooling::CatalogueEntry::Kind::EFFECT),
                         [](const auto& info) {
                           return info.param == tooling::CatalogueEntry::Kind::CONDITION ? "Conditions" : "Effects";
                         });

TEST_P(ReferenceTables, EachEntryAndParameterHasOneRow) { EXPECT_EQ(detailRows(page), expectedRows(GetParam())); }

TEST_P(ReferenceTables, TheSummaryLinksToEachEntryOnce) {
  std::multiset<std::string> linked;
  for (const html::Node* link : html::findAll(page, "a"))
    if (!link->attribute("href").empty()) linked.insert(link->attribute("href"));
  std::multiset<std::string> expected;
  for (const tooling::CatalogueEntry& entry : tooling::describeCatalogue())
    if (entry.kind == GetParam() && entry.name != "UseConditionalBlock") expected.insert("#" + entry.name);
  EXPECT_EQ(linked, expected);
}

TEST_P(ReferenceTables, NoTextTurnsIntoAnElement) {
  const std::set<std::string> ours = {"",      "html", "head", "meta", "style", "body", "h1", "h2",  "table",
                                      "tbody", "tr",   "th",   "td",   "a",     "b",    "br", "font"};
  html::visit(page, [&](const html::Node& node) { EXPECT_TRUE(ours.contains(node.tag)) << node.tag; });
}

}
