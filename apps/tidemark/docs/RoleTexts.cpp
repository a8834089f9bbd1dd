#include "apps/tidemark/docs/ReferencePage.h"

#include <algorithm>
#include <iterator>

namespace tidemark::docs {

namespace {

struct RoleText {
  std::string_view role;
  std::string_view text;
};

constexpr RoleText TEXTS[] = {
    {"number", "a number, or the name of a variable"},
    {"variable in", "the name of a variable, which is read"},
    {"variable out", "the name of a variable, which is set"},
    {"variable in and out", "the name of a variable, which is read and set"},
    {"text", "a text, or svar(name)"},
    {"name or text", "the name of a variable or list of any kind, or a text that stands for itself"},
    {"string variable in", "the name of a string variable, which is read"},
    {"string variable out", "the name of a string variable, which is set"},
    {"string variable in and out", "the name of a string variable, which is read and set"},
    {"bool variable in", "the name of a bool variable, which is read"},
    {"bool variable out", "the name of a bool variable, which is set"},
    {"JSON variable in", "the name of a JSON variable, which is read"},
    {"JSON variable out", "the name of a JSON variable, which is written"},
    {"JSON variable in and out", "the name of a JSON variable, which is read and written"},
    {"string list in", "the name of a string list, which is read"},
    {"string list out", "the name of a string list, which is written"},
    {"list in", "ids of entities with blanks between, or the name of a list"},
    {"list out", "the name of a list, which is written"},
    {"list in and out", "the name of a list, which is read and written"},
    {"id", "the id of an entity"},
    {"trigger", "the name of a trigger of this script"},
    {"global trigger", "the global name of a trigger: project/script/name"},
    {"script path", "the path of a script"},
    {"operator", "one of"},
    {"component", "the class name of a component"},
    {"property", "a property of the component"},
    {"prefab", "the asset of a prefab"},
    {"map", "the asset of a map"},
    {"animation", "the asset of an animation"},
    {"sound", "the asset of a sound"},
    {"picture", "a picture"},
    {"document", "the name of a document"},
    {"element", "the id of an element of the document"},
    {"RML file", "an RML file"},
    {"file in", "the path of a file, which is read"},
    {"file out", "the path of a file, which is written"},
    {"key", "a key of the keyboard"},
    {"mouse button", "a button of the mouse"},
    {"gamepad button", "the number of a gamepad's button"},
    {"gamepad direction", "a direction of a gamepad's hat"},
    {"command", "the name of a command"},
    {"order info", "the name of an order info"},
    {"action", "the class name of an action"},
    {"event", "an event"},
    {"objective", "the id of an objective"},
    {"layer", "a layer"},
    {"text id", "the id of a text in the translations"},
    {"game action", "the name of an action of the game"},
    {"vector", "three numbers or variables with blanks between, or svar(name) of such a text"},
    {"words", "one of"},
    {"flag", "true or false"},
    {"integer", "a whole number; it is read once, so no variable"},
    {"decimal", "a number; it is read once, so no variable"},
    {"raw text", "a text, taken as it stands"},
    {"unused", "anything: it has no influence"},
};

}

std::string_view textOfRole(std::string_view role) {
  const auto* found = std::ranges::find(TEXTS, role, &RoleText::role);
  return found == std::end(TEXTS) ? std::string_view() : found->text;
}

}
