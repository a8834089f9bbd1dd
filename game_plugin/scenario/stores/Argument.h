#pragma once
#include <bit>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// True if the name lives in the global stores: it holds the byte 0xA7, which is `§` in a single-byte code page and the
/// second byte of `§` in UTF-8.
inline bool isGlobalName(std::string_view name) { return name.find('\xA7') != std::string_view::npos; }

/// What one distinct parameter text can mean, worked out once. Shared by all arguments of that text; never freed, as
/// the records that refer to it live as long as the process.
struct ArgumentText {
  std::string text;
  float number = 0;                                ///< if isNumber
  bool isNumber = false;                           ///< the whole text reads as a float
  bool isGlobal = false;                           ///< as a name, it carries the global mark
  bool isVariableReference = false;                ///< it holds "svar("
  bool isReferenceGlobal = false;                  ///< referencedName carries the global mark
  std::unique_ptr<std::vector<std::uint64_t>> ids; ///< set if every blank-separated piece reads as an id

  /// The name that a variable reference refers to: the text from its sixth character on.
  std::string_view referencedName() const { return std::string_view(text).substr(5); }
};

/// All distinct texts. They are found by number, so that an argument is small.
class ArgumentTexts {
public:
  /// The number of a text, classified at its first use.
  static std::uint32_t intern(std::string_view text);
  static const ArgumentText& get(std::uint32_t number) { return sBlocks[number / BLOCK_SIZE][number % BLOCK_SIZE]; }

private:
  static constexpr std::uint32_t BLOCK_SIZE = 1024;
  static ArgumentText** sBlocks;
};

/// A parameter of a record: the raw token text, resolved anew at each use through ScenarioHandler. It remembers where
/// in a store its name was found last; a store's epoch tells whether that still holds, so a use costs no search.
class Argument {
public:
  Argument() : Argument(std::string_view()) {}
  Argument(std::string_view text);
  Argument(const std::string& text) : Argument(std::string_view(text)) {}
  Argument(const char* text) : Argument(std::string_view(text)) {}

  /// The raw text, as entries use it that don't resolve a parameter.
  const std::string& text() const { return info().text; }
  operator const std::string&() const { return text(); }
  const ArgumentText& info() const { return ArgumentTexts::get(mText); }

  friend bool operator==(const Argument& a, std::string_view b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const char* b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const std::string& b) { return a.text() == b; }
  friend bool operator==(const Argument& a, const Argument& b) { return a.mText == b.mText; }

private:
  friend class ScenarioHandler;
  /// Epoch that marks a number literal; mSlot then holds the float's bits.
  static constexpr std::uint32_t LITERAL_EPOCH = 0;
  static constexpr std::uint32_t NO_EPOCH = ~0u;

  std::uint32_t mText;
  mutable std::uint32_t mEpoch;
  mutable std::uint32_t mSlot = 0;
};
static_assert(sizeof(Argument) == 12, "records are many; an argument stays small");

}
