#pragma once
#include "game_plugin/tooling/Tooling.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// What a log expectation asks for: lines of a severity whose message is, or contains, a text.
struct LogPattern {
  static constexpr int ANY_SEVERITY = -1;

  int severity = ANY_SEVERITY;
  std::string text;
  enum class Extent { WHOLE, PART } extent = Extent::WHOLE;

  bool matches(int lineSeverity, std::string_view message) const;
  /// As it is written in a directive.
  std::string describe() const;
};

/// The number that a directive's severity word stands for (`ANY` included); nothing for another word.
std::optional<int> parseSeverity(std::string_view word);

/// Every line that the host of a test has logged, in order. Owned by the test's session.
class LogBook {
public:
  struct Line {
    int severity;
    std::string message;
    std::uint64_t frame; ///< the frame in which it came, or which ran last; 0 before the first
    std::optional<script::tooling::Origin> origin; ///< place in a script that it comes from
  };

  void add(int severity, std::string_view message, std::uint64_t frame,
           std::optional<script::tooling::Origin> origin = std::nullopt);
  const std::vector<Line>& getLines() const { return mLines; }
  std::size_t count(const LogPattern& pattern) const;
  /// Index of the first line that matches; nothing if none does.
  std::optional<std::size_t> find(const LogPattern& pattern) const;

  /// The lines that help to understand why the pattern wasn't met: round the first line that matches or comes nearest,
  /// else the last ones.
  std::vector<std::string> around(const LogPattern& pattern) const;
  std::vector<std::string> around(std::size_t index) const;
  std::vector<std::string> last() const;

private:
  std::vector<std::string> describe(std::size_t begin, std::size_t end, std::size_t marked) const;
  std::vector<Line> mLines;
};

}
