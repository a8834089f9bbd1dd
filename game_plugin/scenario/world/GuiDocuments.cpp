#include "game_plugin/scenario/world/GuiDocuments.h"

namespace script {

namespace {

const GuiDocuments* theDocuments = nullptr;

}

const GuiDocuments* GuiDocuments::get() { return theDocuments; }

void GuiDocuments::set(const GuiDocuments* documents) { theDocuments = documents; }

}
