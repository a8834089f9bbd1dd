#pragma once
#include <cstdint>
#include <string_view>

namespace tidemark::test {

/// True if `actual` is what a directive wrote. A `§` of the directive stands for the mark in UTF-8 and in a single
/// byte; so does the byte \xA7, since a mark is one mark however it is written. Other characters of the directive match
/// themselves in UTF-8, and in code page 1252 if the whole text is no UTF-8.
bool textMatches(std::string_view directive, std::string_view actual);
/// The same for a text inside another.
bool textContained(std::string_view directive, std::string_view actual);
/// How often it stands there, without overlaps. An empty text stands nowhere.
std::uint64_t countOccurrences(std::string_view directive, std::string_view actual);
/// True if the name holds the mark of global store entries, in either encoding.
bool holdsGlobalMark(std::string_view name);

}
