#include "qsf/game/Command.h"

#include <camp/classbuilder.hpp>

namespace qsf::game {

void Command::declareCamp() { camp::Class::declare<Command>("qsf::game::Command").base<Object>(); }

std::string Command::getName() const { return getCampClass().name(); }

}
