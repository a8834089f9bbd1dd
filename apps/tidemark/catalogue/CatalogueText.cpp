#include "apps/tidemark/catalogue/CatalogueText.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace tidemark::catalogue {

namespace {

std::string_view kindOf(const Entry& entry) { return entry.kind == Entry::Kind::CONDITION ? "condition" : "effect"; }

/// Descriptions are written for the reference, whose line breaks are a browser's.
std::string plain(std::string text) {
  for (const std::string_view lineBreak : {"<br>", "\n"})
    for (std::size_t at = text.find(lineBreak); at != std::string::npos; at = text.find(lineBreak, at))
      text.replace(at, lineBreak.size(), " ");
  return text;
}

constexpr std::size_t WIDTH = 100;

/// Breaks the text at blanks; each line begins with the indent.
std::string wrap(const std::string& text, const std::string& indent) {
  std::string result;
  std::string line;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find(' ', begin), text.size());
    const std::string word = text.substr(begin, end - begin);
    if (!line.empty() && displayWidth(indent) + displayWidth(line) + 1 + displayWidth(word) > WIDTH) {
      result += indent + line + "\n";
      line.clear();
    }
    line += (line.empty() ? "" : " ") + word;
    begin = end + 1;
  }
  if (!line.empty()) result += indent + line + "\n";
  return result;
}

std::string describe(const Parameter& parameter) {
  std::string role = parameter.role;
  if (parameter.componentIndex > 0) role += fmt::format(" of the component in {}", parameter.componentIndex);
  if (!parameter.words.empty() && parameter.role != "flag")
    role += fmt::format(": {}", fmt::join(parameter.words, " "));
  const std::string description = plain(parameter.description);
  return fmt::format("  {}  {}{}default \"{}\"\n", parameter.index, parameter.name, parameter.name.empty() ? "" : ", ",
                     parameter.defaultValue) +
         wrap(role, "     ") + wrap(description, "     ");
}

std::string describe(const Entry& entry) {
  std::string text = fmt::format("{}  ({}, {})\n", entry.name, kindOf(entry), entry.category);
  text += wrap(plain(entry.description), "  ");
  text += fmt::format("\n  {}\n", toLine(entry));
  if (!entry.parameters.empty()) text += "\n";
  for (const Parameter& parameter : entry.parameters)
    text += describe(parameter);
  if (!entry.oddities.empty()) text += "\n  Kept as it is:\n";
  for (const std::string& oddity : entry.oddities)
    text += wrap("- " + oddity, "  ");
  return text;
}

using Json = nlohmann::ordered_json;

Json toJson(const Parameter& parameter) {
  return {{"type", parameter.type},
          {"name", parameter.name},
          {"default", parameter.defaultValue},
          {"description", parameter.description},
          {"role", parameter.role},
          {"words", parameter.words}};
}

}

std::string toLine(const Entry& entry) {
  std::vector<std::string> arguments;
  for (const Parameter& parameter : entry.parameters)
    arguments.push_back(parameter.type == "bool" ? parameter.defaultValue : '"' + parameter.defaultValue + '"');
  return fmt::format("{}({});", entry.name, fmt::join(arguments, ","));
}

std::string toList(const Entries& entries) {
  std::string text;
  for (const Entry& entry : entries)
    text += fmt::format("{:9}  {}\n", kindOf(entry), toLine(entry));
  return text;
}

std::string toText(const Entries& entries) {
  std::string text;
  for (const Entry& entry : entries)
    text += (text.empty() ? "" : "\n") + describe(entry);
  return text;
}

std::string toJson(const Entries& entries) {
  Json array = Json::array();
  for (const Entry& entry : entries) {
    Json parameters = Json::array();
    for (const Parameter& parameter : entry.parameters)
      parameters.push_back(toJson(parameter));
    array.push_back({{"kind", kindOf(entry)},
                     {"name", entry.name},
                     {"group", entry.group},
                     {"category", entry.category},
                     {"description", entry.description},
                     {"oddities", entry.oddities},
                     {"parameters", parameters}});
  }
  return array.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}
