#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// A fault of a directive: the test that holds it fails with file and line. The line is known to whoever reads the
/// directive.
class DirectiveError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// One word of a directive. A word with a quoted part is never taken for a keyword.
struct Word {
  std::string text;
  bool quoted = false;
};

/// A `$ @name word...` line.
struct Directive {
  int line = 0; ///< from 1
  std::string name;
  std::vector<Word> words;
  std::string text; ///< the words as written, for messages
};

/// Splits at blanks. Double quotes hold a word together, at any place of it; inside them \" \\ \n \t \xHH are escapes.
/// Throws DirectiveError for an open quote or an unknown escape.
std::vector<Word> splitWords(std::string_view text);

/// The name behind the `@` if the line is a directive, else nothing; the words aren't looked at.
std::optional<std::string> directiveName(std::string_view line);

/// The directive of a line, nothing if it is none. Throws DirectiveError for malformed words.
std::optional<Directive> readDirective(std::string_view line, int number);

/// Walks over the words of one directive. What it hands out is checked; all its faults are DirectiveErrors.
class WordCursor {
public:
  explicit WordCursor(std::vector<Word> words) : mWords(std::move(words)) {}

  bool atEnd() const { return mNext >= mWords.size(); }
  std::size_t remaining() const { return mWords.size() - mNext; }
  /// The word that many places ahead; null behind the end.
  const Word* peek(std::size_t ahead = 0) const {
    return mNext + ahead < mWords.size() ? &mWords[mNext + ahead] : nullptr;
  }
  /// True if the word that many places ahead is that keyword.
  bool peekKeyword(std::string_view keyword, std::size_t ahead = 0) const;
  /// Takes the keyword if it is next.
  bool takeIf(std::string_view keyword);
  /// Takes the keyword or faults.
  void require(std::string_view keyword);
  /// The next word; `what` names it in the fault of its absence.
  std::string take(std::string_view what);
  double takeNumber(std::string_view what);
  std::int64_t takeInteger(std::string_view what);
  std::uint64_t takeId(std::string_view what);
  /// The words up to the end.
  std::vector<std::string> takeRest();
  /// Faults if words are left.
  void requireEnd() const;

private:
  std::vector<Word> mWords;
  std::size_t mNext = 0;
};

/// A plain decimal, `inf`, `-inf` or `nan`; nothing for another text.
std::optional<double> parseNumber(std::string_view text);
std::optional<std::int64_t> parseInteger(std::string_view text);
/// An entity's id: up to 64 bits, decimal, no sign.
std::optional<std::uint64_t> parseId(std::string_view text);

}
