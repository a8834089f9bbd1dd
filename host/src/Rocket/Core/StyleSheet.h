#pragma once
#include "Rocket/Core/String.h"

#include <string_view>

namespace Rocket::Core {

/// The text without comments.
std::string withoutStyleComments(std::string_view text);

/// The rules of a style sheet, one a line, without comments, at-rules and what is no rule: what litehtml and browsers
/// read alike. Of declarations and selectors it holds those that are safe to lay out.
std::string tidyStyleSheet(std::string_view sheet);

/// False for a value that no layout should see: numbers of more than six digits, values that refer to others.
bool isSafeValue(std::string_view value);

}
