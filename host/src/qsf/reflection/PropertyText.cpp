#include "qsf/reflection/PropertyText.h"

#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"

#include <camp/arrayproperty.hpp>
#include <camp/class.hpp>
#include <camp/enumobject.hpp>
#include <camp/enumproperty.hpp>
#include <camp/value.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace qsf {

namespace {

bool isBlank(char character) { return character == ' ' || (character >= '\t' && character <= '\r'); }

std::vector<std::string> splitAtBlanks(std::string_view text) {
  std::vector<std::string> words;
  std::size_t position = 0;
  while (position < text.size()) {
    while (position < text.size() && isBlank(text[position]))
      ++position;
    const std::size_t begin = position;
    while (position < text.size() && !isBlank(text[position]))
      ++position;
    if (position > begin) words.emplace_back(text.substr(begin, position - begin));
  }
  return words;
}

template <std::size_t N> std::array<float, N> realsFromText(std::string_view text, const char* form) {
  const std::vector<std::string> words = splitAtBlanks(text);
  if (words.size() != N)
    throw std::invalid_argument("\"" + std::string(text) + "\" is not of the form \"" + form + "\"");
  std::array<float, N> values{};
  for (std::size_t i = 0; i < N; ++i)
    values[i] = static_cast<float>(realFromText(words[i]));
  return values;
}

std::string integerText(const camp::Property& property, long value) {
  // No signed property of the host is wider than 32 bits, so a smaller number can only be an id.
  if (property.hasTag(UNSIGNED_TAG) || value < std::numeric_limits<std::int32_t>::min())
    return std::to_string(static_cast<std::uint64_t>(value));
  return std::to_string(value);
}

std::string valueText(const camp::Property& property, const camp::Value& value) {
  switch (value.type()) {
  case camp::noType:
    return {};
  case camp::boolType:
    return value.to<bool>() ? "1" : "0";
  case camp::intType:
    return integerText(property, value.to<long>());
  case camp::realType:
    return toText(value.to<double>());
  case camp::stringType:
    return value.to<std::string>();
  case camp::enumType:
    return value.to<std::string>();
  default:
    throw std::invalid_argument("property \"" + property.name() + "\" has no text");
  }
}

const char* describe(camp::Type type) {
  switch (type) {
  case camp::boolType:
    return "a bool (0, 1, true or false)";
  case camp::intType:
    return "a whole number in its range";
  case camp::realType:
    return "a number";
  case camp::enumType:
    return "a name of its enumeration";
  default:
    return "a value of its kind";
  }
}

/// Turns the library's bare conversion faults into words; what the host's own types throw is said well enough.
template <typename Set>
void convert(const camp::Property& property, camp::Type type, const std::string& text, Set set) {
  try {
    set();
  } catch (const std::bad_cast&) {
    throw std::invalid_argument("\"" + text + "\" is not " + describe(type) + ", as property \"" + property.name() +
                                "\" needs it");
  } catch (const camp::BadType&) {
    throw std::invalid_argument("\"" + text + "\" is not " + describe(type) + ", as property \"" + property.name() +
                                "\" needs it");
  }
}

void replaceElements(const camp::UserObject& object, const camp::ArrayProperty& array,
                     const std::vector<std::string>& elements) {
  if (array.dynamic()) {
    array.resize(object, 0);
    for (const std::string& element : elements)
      convert(array, array.elementType(), element, [&] { array.insert(object, array.size(object), element); });
    return;
  }
  if (elements.size() != array.size(object))
    throw std::invalid_argument("property \"" + array.name() + "\" takes exactly " +
                                std::to_string(array.size(object)) + " elements, not " +
                                std::to_string(elements.size()));
  for (std::size_t i = 0; i < elements.size(); ++i)
    convert(array, array.elementType(), elements[i], [&] { array.set(object, i, elements[i]); });
}

}

std::string getPropertyText(const camp::UserObject& object, const camp::Property& property) {
  if (property.type() != camp::arrayType) return valueText(property, property.get(object));
  const auto& array = static_cast<const camp::ArrayProperty&>(property);
  std::string text;
  for (std::size_t i = 0; i < array.size(object); ++i)
    text += (i == 0 ? "" : " ") + valueText(property, array.get(object, i));
  return text;
}

std::string getPropertyText(const camp::UserObject& object, const std::string& property) {
  return getPropertyText(object, object.getClass().property(property));
}

void setPropertyText(const camp::UserObject& object, const std::string& name, const std::string& text) {
  const camp::Property& property = object.getClass().property(name);
  if (property.type() == camp::arrayType)
    setPropertyElements(object, property, splitAtBlanks(text));
  else if (property.type() == camp::realType)
    // The library's own conversion is strict about blanks but lax about forms; this one takes plain numbers only.
    property.set(object, realFromText(text));
  else
    convert(property, property.type(), text, [&] { property.set(object, text); });
}

void setPropertyElements(const camp::UserObject& object, const camp::Property& property,
                         const std::vector<std::string>& elements) {
  if (property.type() != camp::arrayType)
    throw std::invalid_argument("property \"" + property.name() + "\" is no array");
  const auto& array = static_cast<const camp::ArrayProperty&>(property);
  std::vector<camp::Value> old;
  for (std::size_t i = 0; i < array.size(object); ++i)
    old.push_back(array.get(object, i));
  try {
    replaceElements(object, array, elements);
  } catch (...) {
    if (array.dynamic()) array.resize(object, old.size());
    for (std::size_t i = 0; i < old.size(); ++i)
      array.set(object, i, old[i]);
    throw;
  }
}

std::string toText(double value) {
  if (value == 0.0) return "0"; // minus zero, too
  std::array<char, 400> buffer{};
  const float narrow = static_cast<float>(value);
  // What fits a float came from one, and is shown with the digits that a float needs.
  const auto result =
      static_cast<double>(narrow) == value
          ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), narrow, std::chars_format::fixed)
          : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  if (std::isnan(value)) return "nan";
  return std::string(buffer.data(), result.ptr);
}

std::string toText(const glm::vec3& value) { return toText(value.x) + " " + toText(value.y) + " " + toText(value.z); }

std::string toText(const glm::quat& value) {
  return toText(value.w) + " " + toText(value.x) + " " + toText(value.y) + " " + toText(value.z);
}

std::string toText(StringHash value) {
  if (!value.isInitialized()) return {};
  const Qsf* host = Qsf::instance();
  const std::string known = host ? host->getStringHashManager().getStringByHash(value) : std::string();
  return known.empty() ? std::to_string(value.getHash()) : known;
}

double realFromText(std::string_view text) {
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size())
    throw std::invalid_argument("\"" + std::string(text) + "\" is not a number");
  return value;
}

glm::vec3 vectorFromText(std::string_view text) {
  const auto values = realsFromText<3>(text, "x y z");
  return {values[0], values[1], values[2]};
}

glm::quat quaternionFromText(std::string_view text) {
  const auto values = realsFromText<4>(text, "w x y z");
  return {values[0], values[1], values[2], values[3]};
}

StringHash stringHashFromText(const std::string& text) {
  std::uint32_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (!text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size()) return StringHash(number);
  const StringHash hash(text);
  if (const Qsf* host = Qsf::instance(); host && hash.isInitialized())
    host->getStringHashManager().registerStringHash(hash, text);
  return hash;
}

}
