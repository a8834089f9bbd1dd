#include "qsf/reflection/Object.h"

#include "qsf/log/LogSystem.h"
#include "qsf/reflection/PropertyText.h"

#include <camp/classget.hpp>

namespace qsf {

namespace {

struct Assignment {
  std::string property, value;
};

/// Reads one `Name="value"` from `position` on. False if the text there is malformed; blanks at the end are no fault.
bool readAssignment(const std::string& text, std::size_t& position, Assignment& assignment) {
  const std::size_t equals = text.find("=\"", position);
  if (equals == std::string::npos) return false;
  assignment.property = text.substr(position, equals - position);
  while (!assignment.property.empty() && assignment.property.back() == ' ')
    assignment.property.pop_back();
  assignment.value.clear();
  for (position = equals + 2; position < text.size() && text[position] != '"'; ++position) {
    if (text[position] == '\\' && position + 1 < text.size() &&
        (text[position + 1] == '"' || text[position + 1] == '\\'))
      ++position;
    assignment.value += text[position];
  }
  return position++ < text.size();
}

}

const camp::Class& Object::getCampClass() const { return camp::classByObject(*this); }

std::string Object::getPropertyAsString(const std::string& property) const {
  return getPropertyText(camp::UserObject(*this), property);
}

void Object::setPropertyByString(const std::string& property, const std::string& value) {
  setPropertyText(camp::UserObject(*this), property, value);
}

void Object::setPropertyValuesByString(const std::string& text) {
  std::size_t position = 0;
  Assignment assignment;
  while ((position = text.find_first_not_of(' ', position)) != std::string::npos) {
    if (!readAssignment(text, position, assignment)) {
      logMessage(LogSystem::WARNING, "Malformed property text: " + text);
      return;
    }
    try {
      setPropertyByString(assignment.property, assignment.value);
    } catch (const std::exception& fault) {
      logMessage(LogSystem::WARNING, "Property \"" + assignment.property + "\" was not set: " + fault.what());
    }
  }
}

}
