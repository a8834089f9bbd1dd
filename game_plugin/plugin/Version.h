#pragma once

namespace script {

/// Version of the module, which its log tells at each start.
inline constexpr const char* MODULE_VERSION = "1.0.0";

}
