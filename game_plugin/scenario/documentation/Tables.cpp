#include "game_plugin/scenario/documentation/ReferenceFiles.h"

namespace script::documentation {

namespace {

/// What no category is called, so that the first entry opens a group.
constexpr std::string_view NO_CATEGORY = "NO_TYPE";

constexpr std::string_view HEAD = "<!DOCTYPE html>\n"
                                  "<html>\n"
                                  "<head>\n"
                                  "<meta charset=\"utf-8\">\n"
                                  "<style>\n"
                                  "table { width: 100%; border-collapse: collapse; }\n"
                                  "th, td { text-align: left; vertical-align: top; padding: 4px; }\n"
                                  "tr:nth-child(even) { background-color: #e0e0e0; }\n"
                                  "</style>\n"
                                  "</head>\n";

/// `string Variable = "var",string Value = "0"`
std::string parametersOf(const DictionaryEntry& entry) {
  std::string parameters;
  for (const ParameterDocumentation& parameter : entry.parameters) {
    parameters += parameter.type;
    parameters += " ";
    parameters += parameter.name;
    parameters += " = \"" + parameter.defaultValue + "\",";
  }
  if (!parameters.empty()) parameters.pop_back();
  return parameters;
}

std::string summaryGroup(const std::string& category) {
  return "</table>\n<br><br><table><tr style=\"background-color:rgb(206,206,255)\"><td>Category:</td><td>" + category +
         "</td></tr>\n";
}

// The rows aren't closed: HTML closes a row where the next one begins.
std::string summaryRow(const DictionaryEntry& entry) {
  return "<tr><td>void</td><td><a href=\"#" + entry.name + "\">" + entry.name + "</a>(" + parametersOf(entry) +
         ");<br>" + "->" + entry.description + "<br><br>\n</td>";
}

/// The first column is titled for effects on both pages.
std::string detailGroup(const std::string& category) {
  return "<br><font color=\"#FF0000\"><b><h2>Current Category: " + category + "</h2></b></font><br><br><br>\n" +
         "<table>" +
         "<tr><th width=\"15%\">EffectName/DataType</th><th width=\"10%\">Keywords</th>"
         "<th width=\"10%\">StandartParameter</th><th width=\"65%\">Description</th></tr>\n";
}

std::string detailRows(const DictionaryEntry& entry) {
  std::string rows = "<tr><td><a name=\"" + entry.name + "\"><font color=\"#008000\"><b>" + entry.name +
                     "</b></font></a></td><td></td><td></td><td>" + entry.description + "</td></tr>\n";
  for (const ParameterDocumentation& parameter : entry.parameters) {
    rows += "<tr><td>" + std::string(parameter.type) + "</td><td>" + std::string(parameter.name) + "</td><td>" +
            parameter.defaultValue + "</td><td>" + std::string(parameter.description) + "</td></tr>\n";
  }
  return rows;
}

std::string detailOf(const std::vector<const DictionaryEntry*>& entries) {
  constexpr const char* END_OF_TABLE = "</table><br><br>\n\n";
  std::string text;
  std::string_view category = NO_CATEGORY;
  for (const DictionaryEntry* entry : entries) {
    if (entry->category != category) {
      if (!text.empty()) text += END_OF_TABLE;
      text += detailGroup(entry->category);
      category = entry->category;
    }
    text += detailRows(*entry);
  }
  if (!text.empty()) text += END_OF_TABLE;
  return text;
}

std::string summaryOf(const std::vector<const DictionaryEntry*>& entries) {
  std::string text;
  std::string_view category = NO_CATEGORY;
  for (const DictionaryEntry* entry : entries) {
    if (entry->category != category) text += summaryGroup(entry->category);
    category = entry->category;
    text += summaryRow(*entry);
  }
  return text;
}

}

std::string writeTable(const Dictionary& dictionary, TableKind kind) {
  const bool conditions = kind == TableKind::CONDITIONS;
  const std::string title = conditions ? "Conditions" : "Effects";
  std::vector<const DictionaryEntry*> entries;
  for (const DictionaryEntry& entry : dictionary)
    if (entry.isCondition == conditions) entries.push_back(&entry);
  return std::string(HEAD) + "<body><h1>" + title + " Summary</h1><table>" + summaryOf(entries) +
         "</table><br><br><h1>" + title + " Detail</h1><br><br>" + detailOf(entries) + "</body>";
}

}
