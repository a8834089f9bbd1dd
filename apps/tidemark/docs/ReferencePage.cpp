#include "apps/tidemark/docs/ReferencePage.h"

#include "apps/tidemark/docs/ExampleLine.h"
#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <map>

namespace tidemark::docs {

namespace {

using catalogue::Entry;
using catalogue::Parameter;

std::string lower(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

/// Capitals don't matter; what has no name comes last.
struct ByName {
  bool operator()(const std::string& a, const std::string& b) const {
    if (a.empty() || b.empty()) return !a.empty();
    const std::string left = lower(a), right = lower(b);
    return left != right ? left < right : a < b;
  }
};
using Categories = std::map<std::string, std::vector<const Entry*>, ByName>;

Categories sortByCategory(const catalogue::Entries& entries) {
  Categories categories;
  for (const Entry& entry : entries)
    categories[entry.category].push_back(&entry);
  for (auto& [name, members] : categories)
    std::ranges::stable_sort(members, ByName(), &Entry::name);
  return categories;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : toUtf8(text))
    switch (c) {
    case '&':
      result += "&amp;";
      break;
    case '<':
      result += "&lt;";
      break;
    case '>':
      result += "&gt;";
      break;
    case '"':
      result += "&quot;";
      break;
    default:
      result += c;
    }
  return result;
}

/// A description of the catalogue is HTML of which only line breaks are used.
std::string toLines(std::string text) {
  constexpr std::string_view LINE_BREAK = "<br>";
  for (std::size_t at = text.find(LINE_BREAK); at != std::string::npos; at = text.find(LINE_BREAK, at + 1))
    text.replace(at, LINE_BREAK.size(), "\n");
  return escaped(text);
}

std::string_view kindOf(const Entry& entry) { return entry.kind == Entry::Kind::CONDITION ? "condition" : "effect"; }

std::string titleOf(const std::string& category) { return category.empty() ? "Without a category" : category; }

/// Letters and digits as they are, so that links can be written by hand.
std::string anchorOf(const std::string& category) {
  std::string anchor = "category-";
  for (const unsigned char c : category)
    anchor += std::isalnum(c) ? static_cast<char>(c) : '-';
  return anchor;
}

/// A script's line with its quoted texts marked.
std::string coloured(std::string_view line) {
  std::string result;
  while (!line.empty()) {
    const std::size_t begin = std::min(line.find('"'), line.size());
    const std::size_t end = begin == line.size() ? begin : std::min(line.find('"', begin + 1), line.size() - 1) + 1;
    result += escaped(line.substr(0, begin));
    if (end > begin) result += "<span class=\"quoted\">" + escaped(line.substr(begin, end - begin)) + "</span>";
    line.remove_prefix(end);
  }
  return result;
}

std::string defaultOf(const Parameter& parameter) {
  return parameter.type == "bool" ? parameter.defaultValue : '"' + parameter.defaultValue + '"';
}

/// `SetVariable(Variable = "var", Value = "0");`
std::string signatureOf(const Entry& entry) {
  std::string parameters;
  for (const Parameter& parameter : entry.parameters) {
    if (!parameters.empty()) parameters += ", ";
    if (!parameter.name.empty()) parameters += "<i>" + escaped(parameter.name) + "</i> = ";
    parameters += coloured(defaultOf(parameter));
  }
  return fmt::format("<b>{}</b>({});", escaped(entry.name), parameters);
}

std::string takenBy(const Parameter& parameter) {
  const std::string_view text = textOfRole(parameter.role);
  std::string taken = escaped(text.empty() ? std::string_view(parameter.role) : text);
  if (parameter.componentIndex > 0) taken += fmt::format(" in {}", parameter.componentIndex);
  if (parameter.words.empty() || parameter.role == "flag") return taken;
  taken += ":";
  for (const std::string& word : parameter.words)
    taken += fmt::format(" <code>{}</code>", escaped(word));
  return taken;
}

std::string rowOf(const Parameter& parameter) {
  return fmt::format("<tr><td>{}</td><th scope=\"row\">{}</th><td><code>{}</code></td>"
                     "<td><span class=\"takes\" title=\"{}\">{}</span>{}</td></tr>\n",
                     parameter.index, escaped(parameter.name), coloured(defaultOf(parameter)), escaped(parameter.role),
                     takenBy(parameter),
                     parameter.description.empty() ? "" : fmt::format("<p>{}</p>", toLines(parameter.description)));
}

std::string tableOf(const Entry& entry) {
  if (entry.parameters.empty()) return "";
  std::string rows;
  for (const Parameter& parameter : entry.parameters)
    rows += rowOf(parameter);
  return "<table><thead><tr><th scope=\"col\">#</th><th scope=\"col\">Parameter</th><th scope=\"col\">Default</th>"
         "<th scope=\"col\">Takes</th></tr></thead><tbody>\n" +
         rows + "</tbody></table>\n";
}

std::string exampleOf(const Entry& entry) {
  const ExampleLine* example = findExample(entry.name, entry.parameters.size());
  if (!example) return "";
  return fmt::format("<figure class=\"example\"><figcaption>Example</figcaption><pre><code>{}</code></pre>"
                     "<p title=\"tests/scripts/{}\">{}</p></figure>\n",
                     coloured(example->line), escaped(example->test), escaped(example->shows));
}

std::string odditiesOf(const Entry& entry) {
  if (entry.oddities.empty()) return "";
  std::string items;
  for (const std::string& oddity : entry.oddities)
    items += "<li>" + escaped(oddity) + "</li>\n";
  return "<div class=\"odd\"><h4>Kept as it is</h4><ul>\n" + items + "</ul></div>\n";
}

std::string articleOf(const Entry& entry) {
  const std::string name = escaped(entry.name);
  return fmt::format("<article id=\"{0}\" class=\"{1}\">\n<header><h3><a href=\"#{0}\">{0}</a></h3>"
                     "<span class=\"kind\">{1}</span><span class=\"where\">{2}</span></header>\n",
                     name, kindOf(entry), escaped(titleOf(entry.category))) +
         (entry.description.empty() ? "" : "<p class=\"what\">" + toLines(entry.description) + "</p>\n") +
         fmt::format("<div class=\"line\"><code class=\"signature\">{}</code><button type=\"button\" class=\"copy\" "
                     "data-line=\"{}\" hidden>Copy</button></div>\n",
                     signatureOf(entry), escaped(catalogue::toLine(entry))) +
         tableOf(entry) + exampleOf(entry) + odditiesOf(entry) + "</article>\n";
}

std::string contentsOf(const Categories& categories) {
  std::string text;
  for (const auto& [name, members] : categories) {
    text += fmt::format("<section><h2><a href=\"#{}\">{}</a> <small>{}</small></h2><ul>\n", anchorOf(name),
                        escaped(titleOf(name)), members.size());
    for (const Entry* entry : members)
      text += fmt::format("<li><a class=\"{1}\" href=\"#{0}\">{0}</a></li>\n", escaped(entry->name), kindOf(*entry));
    text += "</ul></section>\n";
  }
  return text;
}

std::string entriesOf(const Categories& categories) {
  std::string text;
  for (const auto& [name, members] : categories) {
    text += fmt::format("<h2 id=\"{}\">{}</h2>\n", anchorOf(name), escaped(titleOf(name)));
    for (const Entry* entry : members)
      text += articleOf(*entry);
  }
  return text;
}

// The policy lets the page ask for nothing; the empty icon keeps browsers from looking for one.
constexpr std::string_view HEAD = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; img-src data:; style-src 'unsafe-inline'; script-src 'unsafe-inline'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<link rel="icon" href="data:,">
<title>Tidemark reference</title>
<style>
)";

constexpr std::string_view BAR = R"(</style>
</head>
<body>
<header id="bar">
<h1><a href="#">Tidemark</a></h1>
<form role="search" hidden>
<input id="filter" type="search" placeholder="Filter: a name, a word, a role" aria-label="Filter" aria-describedby="keys" autocomplete="off" autocapitalize="off" spellcheck="false">
<fieldset><legend>Kind</legend>
<label><input type="radio" name="kind" value="" checked>all</label>
<label><input type="radio" name="kind" value="condition">conditions</label>
<label><input type="radio" name="kind" value="effect">effects</label>
</fieldset>
<output id="count" for="filter" aria-live="polite"></output>
<button type="button" id="show-contents" aria-expanded="false" aria-controls="contents">Contents</button>
</form>
<p id="keys" hidden><kbd>/</kbd> filter <kbd>&uarr;</kbd><kbd>&darr;</kbd> walk <kbd>Enter</kbd> go there <kbd>c</kbd> copy its line <kbd>Esc</kbd> all</p>
</header>
)";

}

std::string toPage(const catalogue::Entries& entries) {
  const Categories categories = sortByCategory(entries);
  return fmt::format("{}{}{}<nav id=\"contents\" aria-label=\"Contents\">\n{}</nav>\n<main id=\"entries\">\n{}</main>\n"
                     "<script>\n{}</script>\n</body>\n</html>\n",
                     HEAD, pageStyle(), BAR, contentsOf(categories), entriesOf(categories), pageScript());
}

}
