#pragma once
#include <span>
#include <string_view>

namespace script::documentation {

/// The entries of the reference files in their order: authors find what they look for where it has always stood. Left
/// out are `UseConditionalBlock`, which nobody writes, and `Always`, which no reader describes.
std::span<const std::string_view> documentedNames();

}
