#pragma once
#include "qsf/Export.h"
#include "qsf/base/StringHash.h"

#include <camp/property.hpp>
#include <camp/userobject.hpp>
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace qsf {

/// Tag of properties whose numbers are unsigned. CAMP carries every integer as a signed one, so without the tag the
/// uninitialised id would read "-1" here as it does through camp::Value.
inline constexpr const char* UNSIGNED_TAG = "Unsigned";

/// The property's value as text: bools "0" and "1", numbers in the fewest plain decimals that read back, vectors "1 2
/// 3", rotations "w x y z", enums by name, an array as its elements joined by one blank. Throws a std::exception for a
/// missing property or one without text.
QSF_API std::string getPropertyText(const camp::UserObject& object, const camp::Property& property);
QSF_API std::string getPropertyText(const camp::UserObject& object, const std::string& property);

/// Sets the property from such a text; bools also take "true" and "false", an array its elements separated by blanks.
/// Throws a std::exception whose text names the fault; the property then keeps its value.
QSF_API void setPropertyText(const camp::UserObject& object, const std::string& property, const std::string& text);

/// Replaces the elements of an array property. Throws as setPropertyText does.
QSF_API void setPropertyElements(const camp::UserObject& object, const camp::Property& property,
                                 const std::vector<std::string>& elements);

QSF_API std::string toText(double value);
QSF_API std::string toText(const glm::vec3& value);
QSF_API std::string toText(const glm::quat& value);
/// The text that the hash was made from if the host knows it, else its decimal number; empty for the uninitialised
/// hash.
QSF_API std::string toText(StringHash value);

/// These throw std::invalid_argument if the text isn't just that.
QSF_API double realFromText(std::string_view text);
QSF_API glm::vec3 vectorFromText(std::string_view text);
QSF_API glm::quat quaternionFromText(std::string_view text);
/// Takes a text, or a hash as decimal number. The host remembers the text.
QSF_API StringHash stringHashFromText(const std::string& text);

}
