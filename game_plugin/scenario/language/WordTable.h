#pragma once
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>

namespace script {

/// A row of a table: a word that scripts write, and what it stands for. Tables are constexpr arrays of rows.
template <class Value> struct Word {
  std::string_view text;
  Value value;
};

/// What the word stands for; nothing for a text that isn't in the table. Texts are exact and case-sensitive.
template <class Value, std::size_t SIZE>
constexpr std::optional<Value> lookUp(const Word<Value> (&table)[SIZE], std::string_view text) {
  for (const Word<Value>& word : table)
    if (word.text == text) return word.value;
  return std::nullopt;
}

namespace detail {

template <const auto& TABLE>
inline constexpr auto WORDS_OF = [] {
  std::array<std::string_view, std::size(TABLE)> words;
  for (std::size_t i = 0; i < words.size(); ++i)
    words[i] = TABLE[i].text;
  return words;
}();

}

/// The words of a table, in its order: what a parameter accepts that is looked up in it.
template <const auto& TABLE> constexpr std::span<const std::string_view> wordsOf() { return detail::WORDS_OF<TABLE>; }

}
