#include "Rocket/Core/SystemInterface.h"

namespace Rocket::Core {

namespace {

SystemInterface* theSystem = nullptr;

}

SystemInterface* GetSystemInterface() { return theSystem; }

void SetSystemInterface(SystemInterface* system) { theSystem = system; }

}
