#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace script {

/// Reads the whole text as a float, by the rules of boost::lexical_cast: no blanks, exponents and "inf"/"nan" accepted.
bool textToFloat(const std::string& text, float& value);
/// Reads the whole text as an unsigned 64-bit id, by the rules of boost::lexical_cast.
bool textToId(const std::string& text, std::uint64_t& id);
/// Splits at blanks, adjacent ones taken as one, and reads every piece as an unsigned 64-bit id. False if one fails.
bool textToIds(const std::string& text, std::vector<std::uint64_t>& ids);
/// Splits at blanks, adjacent ones taken as one; a blank at either end leaves an empty piece there.
std::vector<std::string> splitAtBlanks(const std::string& text);
/// Text of a float as a default text stream prints it: six significant digits.
std::string floatToText(float value);

}
