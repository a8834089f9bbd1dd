#pragma once
#include "Rocket/Core/String.h"

#include <string_view>
#include <utility>
#include <vector>

namespace Rocket::Core {

/// `name: value; ...` of a style attribute, in its order; names in lower case. Comments and what is no declaration are
/// passed over; a `;` in quotes or brackets belongs to its value.
std::vector<std::pair<String, String>> readDeclarations(std::string_view text);

}
