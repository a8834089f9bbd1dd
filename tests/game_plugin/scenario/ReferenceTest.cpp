// The whole reference of the catalogue stands in tests/game_plugin/golden/reference.txt, and entries may change it only
// on purpose: authors know names, defaults and descriptions, typing errors included. After such a change
//
//     TIDEMARK_WRITE_GOLDEN=1 build/check/bin/plugin_tests --gtest_filter=Reference.*
//
// writes the file anew; read the difference before it is committed.
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

using namespace script;

namespace {

const std::string GOLDEN = paths::sourceDirectory() + "/tests/game_plugin/golden/reference.txt";

/// The text on one line.
std::string flat(std::string_view text) {
  std::string line;
  for (const char c : text)
    if (c == '\n')
      line += "\\n";
    else if (c == '\t')
      line += "\\t";
    else if (c == '\\')
      line += "\\\\";
    else
      line += c;
  return line;
}

void write(std::ostream& out, std::string_view label, std::string_view text) {
  if (!text.empty()) out << label << flat(text) << '\n';
}

void write(std::ostream& out, const ParameterDocumentation& parameter) {
  out << "  " << parameter.index << ' ' << parameter.type << " \"" << flat(parameter.name) << "\" = \""
      << flat(parameter.defaultValue) << "\"\n      role: " << nameOf(parameter.role);
  if (parameter.componentIndex > 0) out << " of " << parameter.componentIndex;
  out << '\n';
  if (!parameter.words.empty()) {
    out << "      words:";
    for (const std::string_view word : parameter.words)
      out << ' ' << word;
    out << '\n';
  }
  write(out, "      ", parameter.description);
}

template <class Groups> void write(std::ostream& out, std::string_view kind, const Groups& groups) {
  for (const auto* group : groups)
    for (const auto* entry : group->chain) {
      out << kind << ' ' << entry->name << '\n';
      write(out, "  group: ", group->name);
      write(out, "  category: ", entry->category);
      write(out, "  ", entry->description);
      ParameterReader::Documentation parameters;
      ParameterReader in(parameters);
      entry->describe(in);
      for (const ParameterDocumentation& parameter : parameters)
        write(out, parameter);
      for (const std::string_view oddity : entry->oddities)
        write(out, "  odd: ", oddity);
      out << '\n';
    }
}

std::string writeReference() {
  std::ostringstream out;
  write(out, "condition", ScenarioConditions::groups());
  write(out, "effect", ScenarioEffects::groups());
  return out.str();
}

TEST(Reference, IsTheOneThatAuthorsKnow) {
  const std::string written = writeReference();
  if (std::getenv("TIDEMARK_WRITE_GOLDEN")) {
    std::ofstream(GOLDEN, std::ios::binary) << written;
    GTEST_SKIP() << GOLDEN << " was written anew";
  }
  std::ifstream file(GOLDEN, std::ios::binary);
  ASSERT_TRUE(file) << GOLDEN;
  const std::string golden{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (written == golden) return;
  std::istringstream expected(golden);
  std::istringstream found(written);
  std::string entry, expectedLine, foundLine;
  for (int number = 1;; ++number) {
    const bool goesOn = static_cast<bool>(std::getline(expected, expectedLine));
    const bool foundGoesOn = static_cast<bool>(std::getline(found, foundLine));
    if (!expectedLine.empty() && expectedLine.front() != ' ') entry = expectedLine;
    if (goesOn && foundGoesOn && expectedLine == foundLine) continue;
    FAIL() << "the reference differs at line " << number << " of " << GOLDEN << ", " << entry
           << "\n  expected: " << (goesOn ? expectedLine : "the end")
           << "\n  found:    " << (foundGoesOn ? foundLine : "the end");
  }
}

TEST(Reference, DescribingNeedsNoHostAndIsTheSameEachTime) { EXPECT_EQ(writeReference(), writeReference()); }

}
