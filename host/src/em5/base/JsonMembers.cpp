#include "em5/base/JsonMembers.h"

namespace em5 {

std::string textOr(const qsf::JsonPlace& object, const std::string& key, const std::string& defaultValue) {
  return object.has(key) ? object.member(key).asText() : defaultValue;
}

bool boolOr(const qsf::JsonPlace& object, const std::string& key, bool defaultValue) {
  return object.has(key) ? object.member(key).asBool() : defaultValue;
}

double numberOr(const qsf::JsonPlace& object, const std::string& key, NumberRange range, double defaultValue) {
  if (!object.has(key)) return defaultValue;
  const double value = object.member(key).asNumber();
  if (value < range.minimum || value > range.maximum)
    object.member(key).fail("a number from " + qsf::Json(range.minimum).dump() + " to " +
                            qsf::Json(range.maximum).dump() + " is expected here");
  return value;
}

std::vector<std::string> asTexts(const qsf::JsonPlace& place) {
  place.expectArray();
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < place.size(); ++i)
    texts.push_back(place.element(i).asText());
  return texts;
}

std::string requiredText(const qsf::JsonPlace& object, const std::string& key) {
  const std::string text = object.member(key).asText();
  if (text.empty()) object.member(key).fail("a text that isn't empty is expected here");
  return text;
}

}
