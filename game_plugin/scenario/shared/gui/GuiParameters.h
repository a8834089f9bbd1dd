#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

/// What authors read of each parameter that names a document of the game.
inline constexpr std::string_view EXISTING_DOCUMENT_TEXT =
    "The Name of the Instance. There are some in Sublime Editor whih have the prefix GUIDOC_";

/// A document of the game, by its name for scripts.
inline ParameterText readExistingDocument(int i, ParameterReader& in) {
  return in.of(ParameterRole::DOCUMENT, i, "GUIDOC_MainMenuWindow", "DocumentName", EXISTING_DOCUMENT_TEXT);
}

/// The id that a script gave to documents of its own.
inline ParameterText readUniqueId(int i, ParameterReader& in) {
  return in.of(ParameterRole::DOCUMENT, i, "-1", "Unique Id",
               "The Id of the document which is given in the loadrml-effect");
}

}
