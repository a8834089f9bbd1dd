#pragma once
#include <string>

namespace Rocket::Core {
class Event;
}

namespace script {

/// Id of the element that an event is about; empty if there is none.
std::string targetIdOf(Rocket::Core::Event& event);

}
