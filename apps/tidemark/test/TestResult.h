#pragma once
#include "apps/tidemark/test/TestSession.h"

#include <string>
#include <vector>

namespace tidemark::test {

/// What became of one test file.
struct TestResult {
  std::string file;
  double seconds = 0; ///< of real time
  std::vector<Failure> failures;
  std::vector<Note> notes;
  bool passed() const { return failures.empty(); }
};

/// The outcome as the test's process hands it to the one that started it. Texts become UTF-8.
std::string encodeOutcome(const Outcome& outcome);
/// Throws std::exception if the text is no such thing.
Outcome decodeOutcome(const std::string& text);

/// A failure as an author reads it: `file:line: ...`, expected, found, log lines around; several lines.
std::string describeFailure(const std::string& file, const Failure& failure);

/// `file:line: note: ...` in a line.
std::string describeNote(const std::string& file, const Note& note);

/// All results in JUnit's XML, which build servers show. Characters that XML can't hold become question marks.
std::string toJUnit(const std::vector<TestResult>& results);

}
