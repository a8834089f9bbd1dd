#include "apps/tidemark/test/TestResult.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <pugixml.hpp>

#include <sstream>

namespace tidemark::test {

namespace {

using Json = nlohmann::json;

std::string placeOf(const std::string& file, int line) { return line > 0 ? fmt::format("{}:{}", file, line) : file; }

void setAttribute(pugi::xml_node node, const char* name, const std::string& value) {
  node.append_attribute(name).set_value(toXmlText(value).c_str());
}

void appendCase(pugi::xml_node suite, const TestResult& result) {
  const std::size_t slash = result.file.rfind('/');
  pugi::xml_node test = suite.append_child("testcase");
  setAttribute(test, "name", result.file.substr(slash == std::string::npos ? 0 : slash + 1));
  setAttribute(test, "classname", slash == std::string::npos ? "." : result.file.substr(0, slash));
  setAttribute(test, "file", result.file);
  setAttribute(test, "time", fmt::format("{:.3f}", result.seconds));
  for (const Failure& failure : result.failures) {
    pugi::xml_node node = test.append_child(failure.kind == Failure::Kind::ERROR ? "error" : "failure");
    setAttribute(node, "message", failure.expected);
    node.text().set(toXmlText(describeFailure(result.file, failure)).c_str());
  }
  std::string notes;
  for (const Note& note : result.notes)
    notes += describeNote(result.file, note);
  if (!notes.empty()) test.append_child("system-out").text().set(toXmlText(notes).c_str());
}

}

std::string encodeOutcome(const Outcome& outcome) {
  Json list = Json::array();
  for (const Failure& failure : outcome.failures) {
    Json log = Json::array();
    for (const std::string& line : failure.log)
      log.push_back(toUtf8(line));
    list.push_back({{"line", failure.line},
                    {"error", failure.kind == Failure::Kind::ERROR},
                    {"expected", toUtf8(failure.expected)},
                    {"found", toUtf8(failure.found)},
                    {"log", std::move(log)}});
  }
  Json notes = Json::array();
  for (const Note& note : outcome.notes)
    notes.push_back({{"line", note.line}, {"text", toUtf8(note.text)}});
  return Json{{"failures", std::move(list)}, {"notes", std::move(notes)}}.dump();
}

Outcome decodeOutcome(const std::string& text) {
  Outcome outcome;
  const Json root = Json::parse(text);
  for (const Json& item : root.at("failures")) {
    Failure failure;
    failure.line = item.at("line").get<int>();
    failure.kind = item.at("error").get<bool>() ? Failure::Kind::ERROR : Failure::Kind::EXPECTATION;
    failure.expected = item.at("expected").get<std::string>();
    failure.found = item.at("found").get<std::string>();
    for (const Json& line : item.at("log"))
      failure.log.push_back(line.get<std::string>());
    outcome.failures.push_back(std::move(failure));
  }
  for (const Json& item : root.at("notes"))
    outcome.notes.push_back({item.at("line").get<int>(), item.at("text").get<std::string>()});
  return outcome;
}

std::string describeFailure(const std::string& file, const Failure& failure) {
  const std::string place = placeOf(file, failure.line);
  std::string text = failure.kind == Failure::Kind::ERROR
                         ? fmt::format("{}: error: {}\n", place, failure.expected)
                         : fmt::format("{}: expectation failed\n    expected: {}\n    found:    {}\n", place,
                                       failure.expected, failure.found);
  if (!failure.log.empty()) text += "    log:\n";
  for (const std::string& line : failure.log)
    text += fmt::format("    {}\n", line);
  return text;
}

std::string describeNote(const std::string& file, const Note& note) {
  return fmt::format("{}: note: {}\n", placeOf(file, note.line), note.text);
}

std::string toJUnit(const std::vector<TestResult>& results) {
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node suite = document.append_child("testsuites").append_child("testsuite");
  std::size_t failed = 0, errors = 0;
  double seconds = 0;
  for (const TestResult& result : results) {
    const bool error = !result.passed() && result.failures.front().kind == Failure::Kind::ERROR;
    errors += error;
    failed += !result.passed() && !error;
    seconds += result.seconds;
    appendCase(suite, result);
  }
  setAttribute(suite, "name", "tidemark");
  setAttribute(suite, "tests", fmt::format("{}", results.size()));
  setAttribute(suite, "failures", fmt::format("{}", failed));
  setAttribute(suite, "errors", fmt::format("{}", errors));
  setAttribute(suite, "time", fmt::format("{:.3f}", seconds));
  std::ostringstream text;
  document.save(text, "  ");
  return text.str();
}

}
