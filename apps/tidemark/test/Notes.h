#pragma once
#include <string>
#include <vector>

namespace tidemark::test {

class TestSession;

/// What a test tells beside its result: a line of a script that was dropped, or a hint, that no expectation names.
struct Note {
  int line = 0; ///< of the test file; 0: the script isn't part of it
  std::string text;
};

/// The notes of a test that has run and whose host is still there. `projects` is the folder of its projects.
std::vector<Note> collectNotes(const TestSession& session, const std::string& projects);

}
