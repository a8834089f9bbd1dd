// Expectations on files.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/files/JsonText.h"
#include "apps/tidemark/test/files/LinePattern.h"
#include "apps/tidemark/test/steps/Steps.h"
#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t SHOWN = 300; // characters of a file in a failure

bool exists(const std::string& path) {
  std::error_code fault; // what can't be looked at isn't there
  return fs::exists(path, fault);
}

// Throws NotThere if there is no such file, or it can't be read.
std::string readFile(const std::string& path) {
  std::error_code fault;
  if (!exists(path)) throw NotThere(fmt::format("there is no file '{}'", path));
  if (!fs::is_regular_file(path, fault)) throw NotThere(fmt::format("'{}' is no file", path));
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || !(file.peek() == std::ifstream::traits_type::eof() || text << file.rdbuf()))
    throw NotThere(fmt::format("'{}' can't be read", path));
  return std::move(text).str();
}

std::string shown(const std::string& text) {
  return text.size() <= SHOWN ? fmt::format("\"{}\"", text) : fmt::format("\"{}...\"", text.substr(0, SHOWN));
}

// A last line feed ends the last line; it doesn't begin another.
std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(std::move(line));
  }
  return lines;
}

Expectation checking(std::function<Verdict()> check) {
  Expectation expectation;
  expectation.check = [check = std::move(check)](TestSession&) { return check(); };
  return expectation;
}

Expectation expectPresence(const std::string& path, bool wanted) {
  return checking([=] {
    return Verdict{exists(path) == wanted, exists(path) ? "it exists" : "there is no such file", {}};
  });
}

Expectation expectText(WordCursor& words, const std::string& path) {
  const std::string expected = words.take("the file's text");
  return checking([=] {
    const std::string found = readFile(path);
    return Verdict{textMatches(expected, found), shown(found), {}};
  });
}

Expectation expectPart(WordCursor& words, const std::string& path) {
  const std::string part = words.take("a text of the file");
  if (part.empty()) throw DirectiveError("every file contains the empty text");
  const Times times = takeTimes(words);
  return checking([=] {
    const std::string found = readFile(path);
    const std::uint64_t count = countOccurrences(part, found);
    return Verdict{times.holds(count), fmt::format("{} times in {}", count, shown(found)), {}};
  });
}

JsonValue sizeOf(const JsonValue& value) {
  JsonValue size;
  size.text = fmt::format("{}", value.children.size());
  return size;
}

// The value at the path, whose last key may be `size` where no member is called so; what fails is told as NotThere.
Verdict judgeJson(const std::string& path, const std::string& keys,
                  const std::function<Verdict(const JsonValue&)>& judge) {
  const std::string text = readFile(path);
  try {
    // A script in a code page writes a file in that code page.
    const JsonValue root = parseJson(toUtf8(text));
    const JsonValue* value = root.find(keys);
    if (const auto parent = jsonPathBeforeSize(keys); !value && parent)
      if (const JsonValue* list = root.find(*parent)) return judge(sizeOf(*list));
    if (!value) throw NotThere(fmt::format("nothing at '{}' of {}", keys, shown(text)));
    return judge(*value);
  } catch (const NotThere&) {
    throw;
  } catch (const std::runtime_error& fault) {
    throw NotThere(fmt::format("'{}' is no JSON: {}", path, fault.what()));
  }
}

Expectation expectJson(WordCursor& words, const std::string& path) {
  const std::string keys = takeJsonPath(words);
  if (words.takeIf("size")) {
    words.takeIf("==");
    const std::uint64_t size = words.takeId("the number of children");
    return checking([=] {
      return judgeJson(path, keys, [&](const JsonValue& value) {
        return Verdict{value.children.size() == size, fmt::format("{} children", value.children.size()), {}};
      });
    });
  }
  words.require("==");
  const std::string expected = words.take("the expected text");
  return checking([=] {
    return judgeJson(path, keys, [&](const JsonValue& value) {
      if (value.kind != JsonValue::Kind::TEXT)
        throw NotThere(fmt::format("{} of {} children", value.kind == JsonValue::Kind::ARRAY ? "an array" : "an object",
                                   value.children.size()));
      return Verdict{textMatches(expected, value.text), fmt::format("\"{}\"", value.text), {}};
    });
  });
}

Expectation expectLine(WordCursor& words, const std::string& path) {
  const std::uint64_t number = words.takeId("the line's number");
  if (number == 0) throw DirectiveError("lines are counted from 1");
  words.require("like");
  const auto pattern = std::make_shared<LinePattern>(words.take("a pattern"));
  return checking([=] {
    const std::vector<std::string> lines = linesOf(readFile(path));
    if (number > lines.size()) throw NotThere(fmt::format("{} lines", lines.size()));
    const std::string& line = lines[static_cast<std::size_t>(number) - 1];
    return Verdict{pattern->matches(line), shown(line), {}};
  });
}

Expectation expectLines(WordCursor& words, const std::string& path) {
  const std::uint64_t number = words.takeId("the number of lines");
  return checking([=] {
    const std::size_t found = linesOf(readFile(path)).size();
    return Verdict{found == number, fmt::format("{} lines", found), {}};
  });
}

}

std::optional<Expectation> readFileExpectation(WordCursor& words) {
  if (words.peekKeyword("no") && words.peekKeyword("file", 1)) {
    words.require("no");
    words.require("file");
    return expectPresence(words.take("a path"), false);
  }
  if (!words.takeIf("file")) return std::nullopt;
  const std::string path = words.take("a path");
  if (words.takeIf("exists")) return expectPresence(path, true);
  if (words.takeIf("missing")) return expectPresence(path, false);
  if (words.takeIf("==")) return expectText(words, path);
  if (words.takeIf("containing")) return expectPart(words, path);
  if (words.takeIf("json")) return expectJson(words, path);
  if (words.takeIf("line")) return expectLine(words, path);
  if (words.takeIf("lines")) return expectLines(words, path);
  throw DirectiveError("behind a file's path stands exists, missing, ==, containing, json, line or lines");
}

}
