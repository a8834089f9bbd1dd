#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace script {

class ParameterText;

/// True if the name lives in the global stores: it holds the byte 0xA7, which is `§` in a single-byte code page and the
/// second byte of `§` in UTF-8.
inline bool isGlobalName(std::string_view name) { return name.find('\xA7') != std::string_view::npos; }

/// What one distinct parameter text of a program can mean, worked out once. Shared by all arguments of that text.
struct ArgumentText {
  std::string text;
  std::unique_ptr<std::vector<std::uint64_t>> ids; ///< set if every blank-separated piece reads as an id
  std::uint32_t slot = 0;           ///< number within the program: where a handler remembers the name's place
  float number = 0;                 ///< if isNumber
  bool isNumber = false;            ///< the whole text reads as a float
  bool isGlobal = false;            ///< as a name, it carries the global mark
  bool isVariableReference = false; ///< it holds "svar("
  bool isReferenceGlobal = false;   ///< referencedName carries the global mark

  ArgumentText() = default;
  explicit ArgumentText(std::string_view text);

  /// The name that a variable reference refers to: the text from its sixth character on.
  std::string_view referencedName() const { return std::string_view(text).substr(5); }

  /// The empty text, which an argument has that was never read. Its slot, 0, is every program's.
  static const ArgumentText EMPTY;
};

/// The distinct texts of one program, which owns them. Texts are found while it is being loaded and stay where they
/// are.
class ArgumentTexts {
public:
  ArgumentTexts();
  ~ArgumentTexts();
  ArgumentTexts(const ArgumentTexts&) = delete;
  ArgumentTexts& operator=(const ArgumentTexts&) = delete;

  /// The text, classified at its first use.
  const ArgumentText& intern(std::string_view text);
  /// Forgets how to find texts; the load is over.
  void close();
  /// How many slots a handler needs: one for each text, and the one of the empty text.
  std::uint32_t size() const { return mSize; }

private:
  struct Block;
  struct Slot {
    std::uint32_t hash = 0;
    const ArgumentText* text = nullptr;
  };
  Slot& find(std::string_view text, std::uint32_t hash);
  void grow();
  ArgumentText& append(std::string_view text);

  std::unique_ptr<Block> mLast;
  std::vector<Slot> mSlots; ///< open addressing, three quarters full at most
  std::uint32_t mSize = 1;
};

/// A parameter of a record: the raw token text, resolved anew at each use through ScenarioHandler. The text is the
/// program's; where its name was found in a store, the handler remembers.
class Argument {
public:
  Argument() : mText(&ArgumentText::EMPTY) {}
  /// Of a text that was read as a parameter; empty if it was only described.
  Argument(const ParameterText& text);
  explicit Argument(const ArgumentText& text) : mText(&text) {}

  /// The raw text, as entries use it that don't resolve a parameter.
  const std::string& text() const { return mText->text; }
  operator const std::string&() const { return text(); }
  const ArgumentText& info() const { return *mText; }

  friend bool operator==(const Argument& a, std::string_view b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const char* b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const std::string& b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const Argument& b) { return a.mText == b.mText || a.text() == b.text(); }

private:
  const ArgumentText* mText;
};
static_assert(sizeof(Argument) == sizeof(void*), "records are many; an argument stays small");

}
