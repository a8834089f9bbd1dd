#include "game_plugin/scenario/world/ArrayAccess.h"

#include "qsf/log/ErrorHandling.h"

#include <stdexcept>

namespace script {

namespace {

constexpr const char* ARRAY_EXPECTED = "CAMP array expected";
/// The place that the game's error reports know this fault by.
constexpr const char* ASSERTION_SITE = "game_plugin\\scenario\\Effekt\\ComponentsAndVariablesEffects";

}

const camp::ArrayProperty* findArrayProperty(const camp::UserObject& object, const std::string& name) {
  const camp::Property& property = object.getClass().property(name);
  return property.type() == camp::arrayType ? &static_cast<const camp::ArrayProperty&>(property) : nullptr;
}

const camp::ArrayProperty& requireArrayProperty(const camp::UserObject& object, const std::string& name) {
  const camp::ArrayProperty* array = findArrayProperty(object, name);
  if (array) return *array;
  qsf::ErrorHandling::printToLog(ARRAY_EXPECTED, 1);
  qsf::ErrorHandling::handleBreakOnAssert(ASSERTION_SITE, __LINE__, __func__);
  throw std::runtime_error(ARRAY_EXPECTED);
}

std::size_t findElement(const camp::ArrayProperty& array, const camp::UserObject& object, const std::string& text) {
  const std::size_t size = array.size(object);
  for (std::size_t i = 0; i < size; ++i)
    if (array.get(object, i).to<std::string>() == text) return i;
  return size;
}

}
