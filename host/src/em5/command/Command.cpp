#include "em5/command/Command.h"

#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<Command> declared;

void Command::declareCamp() { camp::Class::declare<Command>("em5::Command").base<qsf::game::Command>(); }

}
