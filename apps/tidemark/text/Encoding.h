#pragma once
#include <cstddef>
#include <string>
#include <string_view>

/// Texts of scripts are bytes, in UTF-8 or in Windows code page 1252.
namespace tidemark {

bool isUtf8(std::string_view text);
/// The text itself if it is UTF-8, else taken as code page 1252; for output.
std::string toUtf8(std::string_view text);

/// Number of characters of a text in UTF-8.
std::size_t displayWidth(std::string_view text);
/// A text in UTF-8 as a table shows it: at most so many characters, then dots; a question mark for each control
/// character.
std::string toCell(std::string_view text, std::size_t longest);
/// The text in UTF-8, with a question mark for each character that XML can't hold.
std::string toXmlText(std::string_view text);

/// UTF-8 to code page 1252. A byte order mark is dropped: the code page has none. Throws std::invalid_argument, which
/// names the line, for bytes that are no UTF-8 and for characters that the code page lacks.
std::string convertToCodePage1252(std::string_view text);

/// Every line feed gets a carriage return in front, unless it has one.
std::string convertToCarriageReturns(std::string_view text);

}
