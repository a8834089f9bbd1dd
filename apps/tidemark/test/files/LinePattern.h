#pragma once
#include <memory>
#include <string>

namespace tidemark::test {

/// A pattern in ECMAScript's syntax that a whole line is compared with. Its cost is bounded: a search neither runs out
/// of stack nor takes more than polynomial time, so references back to a group are not available.
class LinePattern {
public:
  /// Throws DirectiveError for a pattern that is malformed, too long or too costly.
  explicit LinePattern(const std::string& pattern);
  ~LinePattern();
  LinePattern(LinePattern&&) noexcept;
  LinePattern& operator=(LinePattern&&) = delete;

  /// Throws NotThere for a line too long to be compared.
  bool matches(const std::string& line) const;

private:
  struct Compiled;
  std::unique_ptr<Compiled> mCompiled;
};

}
