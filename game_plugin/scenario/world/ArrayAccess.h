#pragma once
#include <camp/arrayproperty.hpp>
#include <camp/class.hpp>
#include <camp/userobject.hpp>
#include <camp/value.hpp>

#include <string>

namespace script {

/// The property as an array, or null if it is of another kind. Throws a std::exception if there is no such property.
const camp::ArrayProperty* findArrayProperty(const camp::UserObject& object, const std::string& name);

/// The property as an array. One of another kind is a fault of the script that is told through the host's error
/// handling and thrown as std::runtime_error.
const camp::ArrayProperty& requireArrayProperty(const camp::UserObject& object, const std::string& name);

/// Index of the first element whose text is that one; the array's size if there is none.
std::size_t findElement(const camp::ArrayProperty& array, const camp::UserObject& object, const std::string& text);

}
