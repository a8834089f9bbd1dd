#include "apps/tidemark/test/Notes.h"

#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/project/ProjectWriter.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;
using script::tooling::DroppedLineView;
using script::tooling::HintView;
using script::tooling::Origin;

// The test file's line that is that line of an installed script; 0 if the script isn't part of the test file.
int findLine(const TestPlan& plan, const std::string& projects, const Origin& place) {
  const fs::path path = fs::absolute(place.path).lexically_normal();
  for (const ProjectPlan& project : plan.projects)
    for (const ScriptSection& script : project.scripts)
      if (path == fs::path(projectDirectory(project, projects)) / "x64/tidemark" / script.path)
        return script.line + static_cast<int>(place.line);
  return 0;
}

// A dropped line is known to the test by the log line that came with it, or by its reason.
bool isNamed(const TestSession& session, const DroppedLineView& dropped) {
  const std::vector<LogPattern> patterns = session.plan().namedLines();
  const auto& lines = session.log().getLines();
  const auto isLogged = [&](const LogPattern& pattern) {
    return std::ranges::any_of(lines, [&](const LogBook::Line& line) {
      return line.origin && line.origin->line == dropped.line && line.origin->path == dropped.path &&
             pattern.matches(line.severity, line.message);
    });
  };
  const std::vector<std::string> hints = session.plan().namedHints();
  return std::ranges::any_of(patterns, isLogged) ||
         std::ranges::any_of(hints, [&](const std::string& text) { return textContained(text, dropped.reason); });
}

bool isNamed(const TestSession& session, const HintView& hint) {
  const std::vector<std::string> texts = session.plan().namedHints();
  return std::ranges::any_of(texts,
                             [&](const std::string& text) { return textContained(text, tidemark::describe(hint)); });
}

}

std::vector<Note> collectNotes(const TestSession& session, const std::string& projects) {
  std::vector<Note> notes;
  for (const DroppedLineView& dropped : session.tooling().getDroppedLines()) {
    const Origin place{dropped.path, dropped.line, ""};
    if (!isNamed(session, dropped))
      notes.push_back({findLine(session.plan(), projects, place),
                       fmt::format("dropped line: {}    {}", describe(dropped), tidemark::describe(place))});
  }
  for (const HintView& hint : session.tooling().getHints())
    if (!isNamed(session, hint))
      notes.push_back({findLine(session.plan(), projects, hint.origin),
                       fmt::format("hint: {}    {}", describe(hint), tidemark::describe(hint.origin))});
  std::ranges::stable_sort(notes, {}, &Note::line);
  return notes;
}

}
