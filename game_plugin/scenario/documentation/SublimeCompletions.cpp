#include "game_plugin/scenario/documentation/ReferenceFiles.h"

namespace script::documentation {

namespace {

/// `${1:string Variable = \"var\"},${2:...}`: places that Sublime Text fills one after the other.
std::string placesOf(const DictionaryEntry& entry) {
  std::string places;
  int number = 0;
  for (const ParameterDocumentation& parameter : entry.parameters) {
    places += "${" + std::to_string(++number) + ":";
    places += parameter.type;
    places += " ";
    places += parameter.name;
    places += " = \\\"" + parameter.defaultValue + "\\\"},";
  }
  if (!places.empty()) places.pop_back();
  return places;
}

}

std::string writeSublimeCompletions(const Dictionary& dictionary) {
  std::string text;
  for (const DictionaryEntry& entry : dictionary) {
    text += "\t\t\t\t{\n";
    text += "\t\t\t\t\t\t\"trigger\": \"" + entry.name + "(...)\",\n";
    text += "\t\t\t\t\t\t\"contents\": \"" + entry.name + "(" + placesOf(entry) + ");\"\n";
    text += "\t\t\t\t},\n";
  }
  text += "\t\t\t\t{\n";
  text += "\t\t\t\t\t\t\"trigger\": \"Always()\",\n";
  text += "\t\t\t\t\t\t\"contents\": \"Always();\"\n";
  text += "\t\t\t\t}\n";
  return text;
}

}
