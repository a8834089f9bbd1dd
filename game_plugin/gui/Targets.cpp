#include "game_plugin/gui/Targets.h"

#include <Rocket/Core/Element.h>
#include <Rocket/Core/Event.h>

namespace script {

std::string targetIdOf(Rocket::Core::Event& event) {
  Rocket::Core::Element* target = event.GetTargetElement();
  return target ? std::string(target->GetId()) : std::string();
}

}
