#pragma once
#include "game_plugin/syntax/ScriptTokenizer.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace script::syntax {

/// What the language makes of a line before it asks the catalogue for a name.
enum class LineKind : unsigned char {
  EMPTY,       ///< nothing, or blanks only
  COMMENT,     ///< holds a `$`
  INVALID,     ///< no command; dropped with a message
  NEW_TRIGGER, ///< InitNewTrigger
  CONDITIONS,  ///< InitConditions
  EFFECTS,     ///< InitEffects or InitNegativEffects
  IF,
  ELSE,
  THEN,
  THEN_END,
  CONDITION, ///< a name of the condition catalogue, or `Always`
  EFFECT     ///< a name of the effect catalogue
};

/// One line of a script. Its views live until the reader goes on.
struct Line {
  std::uint32_t number = 0; ///< from 1
  LineKind kind = LineKind::EMPTY;
  bool negated = false;  ///< the name was written with a `!`, which is no part of tokens[0]
  bool inBlock = false;  ///< belongs to the last `If` of its trigger
  bool inElse = false;   ///< of a block: behind its Else
  std::string_view raw;  ///< as written, without the line's end
  std::string_view text; ///< without tabs and braces, which are decoration wherever they stand; empty for a comment
  Tokens tokens;         ///< name and parameters of a command; their places are offsets in `text`

  /// Column in the file, from 1 and in bytes, of an offset in `text`.
  std::uint32_t columnOf(std::uint32_t offset) const;
};

/// Reads a script's text line by line and knows which section each line stands in. Nothing of the catalogue, nothing of
/// a host: tools read half-written scripts with it at each keystroke, the module loads from it.
class ScriptText {
public:
  /// The text must outlive the reader. A byte order mark is passed over.
  explicit ScriptText(std::string_view text);

  /// Goes to the next line; false behind the last one.
  bool next();
  const Line& line() const { return mLine; }

  /// Well-formed UTF-8 that holds a character of more than one byte, a byte order mark included: the global mark is
  /// written in two bytes there.
  static bool isMultiByteUtf8(std::string_view text);

private:
  void clean();
  void classify();

  std::string_view mRest;
  Line mLine;
  std::string mClean;   ///< storage of a text that lost its decoration
  std::string mStorage; ///< storage of tokens that the grammar made
  bool mReadingConditions = true;
  bool mInBlock = false;
  bool mInElse = false;
};

}
