#pragma once
#include "qsf/base/JsonFile.h"

#include <string>
#include <vector>

namespace em5 {

/// Members of an object that may be left out. A member of the wrong kind or out of its range throws qsf::LoadError.
std::string textOr(const qsf::JsonPlace& object, const std::string& key, const std::string& defaultValue);
bool boolOr(const qsf::JsonPlace& object, const std::string& key, bool defaultValue);

struct NumberRange {
  double minimum;
  double maximum;
};
double numberOr(const qsf::JsonPlace& object, const std::string& key, NumberRange range, double defaultValue);

/// An array of texts.
std::vector<std::string> asTexts(const qsf::JsonPlace& place);

/// The member of that name, a text that isn't empty.
std::string requiredText(const qsf::JsonPlace& object, const std::string& key);

}
