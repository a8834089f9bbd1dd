#include "apps/example_lines/ExampleLines.h"

#include "game_plugin/syntax/ScriptText.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>
#include <tuple>

namespace tidemark::examples {

namespace {

namespace fs = std::filesystem;
using script::syntax::LineKind;
using script::syntax::ScriptText;

constexpr std::size_t LONGEST_LINE = 140;

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path.string() + ": can't be read");
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t\r");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t\r") + 1 - begin);
}

std::string_view firstLine(std::string_view text) { return trimmed(text.substr(0, text.find('\n'))); }

/// The sentence behind the dollar sign of the first line; empty if that is a directive or a command.
std::string purposeOf(std::string_view text) {
  const std::string_view line = firstLine(text);
  if (!line.starts_with('$')) return {};
  const std::string_view sentence = trimmed(line.substr(1));
  return sentence.starts_with('@') ? std::string() : std::string(sentence);
}

/// True if the test shows what goes wrong, or is about how files are written.
bool isAboutFaults(std::string_view text) {
  for (const std::string_view mark : {" hint ", " log ERROR", " log WARNING", "@encoding", "@eol", "\xA7"})
    if (text.find(mark) != std::string_view::npos) return true;
  return false;
}

bool isPlainText(std::string_view text) {
  return std::ranges::all_of(text, [](unsigned char c) { return c >= ' ' && c < 0x7F; });
}

/// A line with what speaks for it; the least is the best.
struct Candidate {
  Line line;
  std::tuple<bool, bool, bool, std::size_t> rank;
};

using Best = std::map<std::pair<std::string, std::size_t>, Candidate>;

void offer(Best& best, Candidate candidate) {
  const std::pair key(candidate.line.entry, candidate.line.arguments);
  const auto found = best.find(key);
  if (found == best.end())
    best.emplace(key, std::move(candidate));
  else if (candidate.rank < found->second.rank)
    found->second = std::move(candidate);
}

void readScript(Best& best, const fs::path& folder, const fs::path& path) {
  const std::string text = readFile(path);
  const std::string purpose = purposeOf(text);
  const bool aboutFaults = isAboutFaults(text);
  const std::string owner = path.parent_path().filename().string();
  ScriptText script(text);
  while (script.next()) {
    const auto& line = script.line();
    if (line.kind != LineKind::CONDITION && line.kind != LineKind::EFFECT) continue;
    const std::string_view written = trimmed(line.text);
    if (written.size() > LONGEST_LINE || !isPlainText(written)) continue;
    const std::string entry(line.tokens.front().text);
    offer(best, {{entry, line.tokens.size() - 1, std::string(written), isPlainText(purpose) ? purpose : std::string(),
                  path.lexically_relative(folder).generic_string()},
                 {owner != entry, aboutFaults, line.negated, written.size()}});
  }
}

std::string literalOf(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') literal += '\\';
    literal += c;
  }
  return literal + '"';
}

}

Collection collect(const fs::path& folder) {
  Collection found;
  std::vector<fs::path> scripts;
  found.inputs.push_back(folder);
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_directory()) found.inputs.push_back(entry.path());
    if (entry.is_regular_file() && entry.path().extension() == ".script") scripts.push_back(entry.path());
  }
  std::ranges::sort(scripts);
  Best best;
  for (const fs::path& script : scripts)
    readScript(best, folder, script);
  for (auto& [key, candidate] : best)
    found.lines.push_back(std::move(candidate.line));
  found.inputs.insert(found.inputs.end(), scripts.begin(), scripts.end());
  return found;
}

std::string toSource(const std::vector<Line>& lines) {
  std::string source = "// Made by example_lines from the script tests.\n"
                       "#include \"apps/tidemark/docs/ExampleLine.h\"\n\n"
                       "namespace tidemark::docs {\n\n"
                       "static constexpr ExampleLine LINES[] = {\n";
  for (const Line& line : lines)
    source += "    {" + literalOf(line.entry) + ", " + std::to_string(line.arguments) + ", " + literalOf(line.text) +
              ",\n     " + literalOf(line.shows) + ",\n     " + literalOf(line.file) + "},\n";
  source += "    {}};\n\nstd::span<const ExampleLine> exampleLines() { return {LINES, std::size(LINES) - 1}; }\n\n}\n";
  return source;
}

std::string toRule(const fs::path& output, const std::vector<fs::path>& inputs) {
  const auto escaped = [](const fs::path& path) {
    std::string text;
    for (const char c : path.string()) {
      if (c == ' ' || c == '#') text += '\\';
      if (c == '$') text += '$';
      text += c;
    }
    return text;
  };
  std::string rule = escaped(output) + ":";
  for (const fs::path& input : inputs)
    rule += " \\\n  " + escaped(input);
  return rule + "\n";
}

}
