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
  bool passed() const { return failures.empty(); }
};

/// The failures as the test's process hands them to the one that started it. Texts become UTF-8.
std::string encodeFailures(const std::vector<Failure>& failures);
/// Throws std::exception if the text is no such thing.
std::vector<Failure> decodeFailures(const std::string& text);

/// A failure as an author reads it: `file:line: ...`, expected, found, log lines around; several lines.
std::string describeFailure(const std::string& file, const Failure& failure);

/// All results in JUnit's XML, which build servers show. Characters that XML can't hold become question marks.
std::string toJUnit(const std::vector<TestResult>& results);

}
