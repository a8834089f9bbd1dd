#include "game_plugin/scenario/world/Reflection.h"

#include <camp/class.hpp>
#include <camp/property.hpp>

#include <stdexcept>

namespace script {

std::string readAsText(qsf::Component& component, qsf::StringHash propertyId) {
  const camp::UserObject object = reflect(component);
  const camp::Class& type = object.getClass();
  for (std::size_t i = 0; i < type.propertyCount(); ++i)
    if (const camp::Property& property = type.property(i); qsf::StringHash(property.name()) == propertyId)
      return property.get(object).to<std::string>();
  throw std::out_of_range("the class " + type.name() + " has no such property");
}

}
