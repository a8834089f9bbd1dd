#pragma once
#include <cstddef>

namespace Rocket::Core {

// RML is text of strangers. What goes beyond is refused with a line in the log.
constexpr std::size_t MAXIMUM_RML_SIZE = 4u << 20; ///< bytes of one text
constexpr int MAXIMUM_DEPTH = 64;                  ///< elements inside each other
constexpr std::size_t MAXIMUM_ELEMENTS = 20'000;   ///< of one document
constexpr std::size_t MAXIMUM_ATTRIBUTES = 256;    ///< of one element; of local properties likewise
constexpr int MAXIMUM_EVENT_DEPTH = 32;            ///< events that cause each other

}
