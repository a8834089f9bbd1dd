#include "apps/tidemark/test/TestResult.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace tidemark::test {

namespace {

using Json = nlohmann::json;

std::string escapeXml(std::string_view text) {
  std::string result;
  for (const char character : toUtf8(text)) {
    if (static_cast<unsigned char>(character) < 0x20 && character != '\n' && character != '\t')
      result += '?';
    else if (character == '<')
      result += "&lt;";
    else if (character == '>')
      result += "&gt;";
    else if (character == '&')
      result += "&amp;";
    else if (character == '"')
      result += "&quot;";
    else if (character == '\n')
      result += "&#10;";
    else
      result += character;
  }
  return result;
}

std::string describeCase(const TestResult& result) {
  const std::size_t slash = result.file.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : result.file.substr(0, slash);
  std::string xml = fmt::format("    <testcase name=\"{}\" classname=\"{}\" file=\"{}\" time=\"{:.3f}\"",
                                escapeXml(result.file.substr(slash == std::string::npos ? 0 : slash + 1)),
                                escapeXml(folder), escapeXml(result.file), result.seconds);
  if (result.passed()) return xml + "/>\n";
  xml += ">\n";
  for (const Failure& failure : result.failures) {
    const char* element = failure.kind == Failure::Kind::ERROR ? "error" : "failure";
    xml += fmt::format("      <{0} message=\"{1}\">{2}</{0}>\n", element, escapeXml(failure.expected),
                       escapeXml(describeFailure(result.file, failure)));
  }
  return xml + "    </testcase>\n";
}

}

std::string encodeFailures(const std::vector<Failure>& failures) {
  Json list = Json::array();
  for (const Failure& failure : failures) {
    Json log = Json::array();
    for (const std::string& line : failure.log)
      log.push_back(toUtf8(line));
    list.push_back({{"line", failure.line},
                    {"error", failure.kind == Failure::Kind::ERROR},
                    {"expected", toUtf8(failure.expected)},
                    {"found", toUtf8(failure.found)},
                    {"log", std::move(log)}});
  }
  return Json{{"failures", std::move(list)}}.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Failure> decodeFailures(const std::string& text) {
  std::vector<Failure> failures;
  const Json root = Json::parse(text);
  for (const Json& item : root.at("failures")) {
    Failure failure;
    failure.line = item.at("line").get<int>();
    failure.kind = item.at("error").get<bool>() ? Failure::Kind::ERROR : Failure::Kind::EXPECTATION;
    failure.expected = item.at("expected").get<std::string>();
    failure.found = item.at("found").get<std::string>();
    for (const Json& line : item.at("log"))
      failure.log.push_back(line.get<std::string>());
    failures.push_back(std::move(failure));
  }
  return failures;
}

std::string describeFailure(const std::string& file, const Failure& failure) {
  const std::string place = failure.line > 0 ? fmt::format("{}:{}", file, failure.line) : file;
  std::string text = failure.kind == Failure::Kind::ERROR
                         ? fmt::format("{}: error: {}\n", place, failure.expected)
                         : fmt::format("{}: expectation failed\n    expected: {}\n    found:    {}\n", place,
                                       failure.expected, failure.found);
  if (!failure.log.empty()) text += "    log:\n";
  for (const std::string& line : failure.log)
    text += fmt::format("    {}\n", line);
  return text;
}

std::string toJUnit(const std::vector<TestResult>& results) {
  std::size_t failed = 0, errors = 0;
  double seconds = 0;
  std::string cases;
  for (const TestResult& result : results) {
    const bool error = !result.passed() && result.failures.front().kind == Failure::Kind::ERROR;
    errors += error;
    failed += !result.passed() && !error;
    seconds += result.seconds;
    cases += describeCase(result);
  }
  return fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>\n  <testsuite name=\"tidemark\" "
                     "tests=\"{}\" failures=\"{}\" errors=\"{}\" time=\"{:.3f}\">\n{}"
                     "  </testsuite>\n</testsuites>\n",
                     results.size(), failed, errors, seconds, cases);
}

}
