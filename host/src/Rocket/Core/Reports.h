#pragma once
#include "Rocket/Core/SystemInterface.h"

namespace Rocket::Core {

/// One line of the program's log, if there is one.
inline void warn(const std::string& message) {
  if (SystemInterface* system = GetSystemInterface()) system->LogWarning(message);
}

/// Makes the call, guarded by the program if there is one.
template <class Call> void callGuarded(const Call& call, const String& source) {
  if (SystemInterface* system = GetSystemInterface())
    system->CallGuarded(call, source);
  else
    call();
}

}
