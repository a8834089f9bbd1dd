#include "game_plugin/plugin/CampClasses.h"

namespace script {

std::vector<const camp::Class*> declareCampClasses() { return {}; }

}
