#pragma once
#include "qsf/component/Component.h"
#include "qsf/map/Entity.h"

#include <camp/userobject.hpp>
#include <camp/value.hpp>

#include <string>

namespace script {

/// The entity's component of that class name, or null.
inline qsf::Component* findComponent(const qsf::Entity& entity, const std::string& className) {
  return entity.getComponentById(qsf::StringHash(className));
}

/// The reflected view of a component, by its dynamic class. Reading and writing throw a std::exception kind for a
/// missing property or a value that doesn't convert.
inline camp::UserObject reflect(qsf::Component& component) { return camp::UserObject(component); }

/// A property as the text that scripts compare: bools are "0" and "1", an uninitialised id is "-1".
inline std::string readAsText(qsf::Component& component, const std::string& property) {
  return reflect(component).get(property).to<std::string>();
}
/// The same by the hash of the property's name. Throws std::out_of_range if there is none.
std::string readAsText(qsf::Component& component, qsf::StringHash propertyId);

}
