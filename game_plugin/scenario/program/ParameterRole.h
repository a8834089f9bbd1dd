#pragma once
#include <string_view>

namespace script {

/// What a parameter means to whoever reads a script without running it: checkers, completion, renaming, the reference.
enum class ParameterRole : unsigned char {
  Number,              ///< a number literal, or a variable that is read
  VariableIn,          ///< the name of a variable that is read; a literal would make no sense
  VariableOut,         ///< the name of a variable that is written
  VariableInOut,       ///< read and written
  Text,                ///< a text, or `svar(name)`
  StringVariableIn,    ///< the name of a string variable that is read
  StringVariableOut,   ///< written
  StringVariableInOut, ///< read and written
  BoolVariableIn,
  BoolVariableOut,
  JsonVariableIn,
  JsonVariableOut,
  JsonVariableInOut,
  StringListIn,
  StringListOut,
  List,      ///< ids, or the name of a list that is read
  ListOut,   ///< the name of a list that is written
  ListInOut, ///< read and written
  Id,        ///< one entity id, as a number
  Trigger,   ///< the local name of a trigger of this script
  GlobalTrigger,
  Script,     ///< the path of a script file
  Comparison, ///< an operator of CompareValues
  Component,  ///< the class name of a component
  Property,   ///< a property of the component that another parameter names
  Prefab,
  Map,
  Animation,
  Sound,
  Picture,
  Document,
  Element, ///< of a document, by id
  RmlFile,
  FileIn,
  FileOut,
  Key, ///< a key of the keyboard, by name or description
  MouseButton,
  GamepadButton,
  GamepadDirection,
  Command,
  OrderInfo,
  Action, ///< the class name of an action
  Event,
  Objective,
  Layer,
  TextId,
  GameAction,
  Vector,  ///< three numbers or variables, separated by blanks, or `svar(name)` of such a text
  Words,   ///< one of some words
  Flag,    ///< true or false
  Integer, ///< a whole number, read once, when the script is loaded
  Decimal, ///< a number, read once
  Raw,     ///< a text that stands for itself
  Unused,  ///< read, without influence
  Count_
};

/// The role's name as tools show it: "variable out", "list in and out".
std::string_view nameOf(ParameterRole role);

}
