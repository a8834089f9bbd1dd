#pragma once
#include <string_view>

namespace script {

/// What a parameter means to whoever reads a script without running it: checkers, completion, renaming, the reference.
enum class ParameterRole : unsigned char {
  NUMBER,                 ///< a number literal, or a variable that is read
  VARIABLE_IN,            ///< the name of a variable that is read; a literal would make no sense
  VARIABLE_OUT,           ///< the name of a variable that is written
  VARIABLE_IN_OUT,        ///< read and written
  TEXT,                   ///< a text, or `svar(name)`
  NAME_OR_TEXT,           ///< the name of anything that a store holds, which is read, or a text that stands for itself
  STRING_VARIABLE_IN,     ///< the name of a string variable that is read
  STRING_VARIABLE_OUT,    ///< written
  STRING_VARIABLE_IN_OUT, ///< read and written
  BOOL_VARIABLE_IN,
  BOOL_VARIABLE_OUT,
  JSON_VARIABLE_IN,
  JSON_VARIABLE_OUT,
  JSON_VARIABLE_IN_OUT,
  STRING_LIST_IN,
  STRING_LIST_OUT,
  LIST,        ///< ids, or the name of a list that is read
  LIST_OUT,    ///< the name of a list that is written
  LIST_IN_OUT, ///< read and written
  ID,          ///< one entity id, as a number
  TRIGGER,     ///< the local name of a trigger of this script
  GLOBAL_TRIGGER,
  SCRIPT,     ///< the path of a script file
  COMPARISON, ///< an operator of CompareValues
  COMPONENT,  ///< the class name of a component
  PROPERTY,   ///< a property of the component that another parameter names
  PREFAB,
  MAP,
  ANIMATION,
  SOUND,
  PICTURE,
  DOCUMENT,
  ELEMENT, ///< of a document, by id
  RML_FILE,
  FILE_IN,
  FILE_OUT,
  KEY, ///< a key of the keyboard, by name or description
  MOUSE_BUTTON,
  GAMEPAD_BUTTON,
  GAMEPAD_DIRECTION,
  COMMAND,
  ORDER_INFO,
  ACTION, ///< the class name of an action
  EVENT,
  OBJECTIVE,
  LAYER,
  TEXT_ID,
  GAME_ACTION,
  VECTOR,  ///< three numbers or variables, separated by blanks, or `svar(name)` of such a text
  WORDS,   ///< one of some words
  FLAG,    ///< true or false
  INTEGER, ///< a whole number, read once, when the script is loaded
  DECIMAL, ///< a number, read once
  RAW,     ///< a text that stands for itself
  UNUSED,  ///< read, without influence
  COUNT
};

/// The role's name as tools show it: "variable out", "list in and out".
std::string_view nameOf(ParameterRole role);

}
