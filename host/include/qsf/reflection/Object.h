#pragma once
#include "qsf/Export.h"

#include <camp/camptype.hpp>
#include <camp/class.hpp>

#include <string>

namespace qsf {

/// Base of everything that is reflected through CAMP. A class that derives from it names itself with
/// CAMP_TYPE_NONCOPYABLE and carries CAMP_RTTI(); its declaration stands in its own source and is made once, by a
/// static function `declareCamp()`.
class QSF_API Object {
  CAMP_RTTI()
public:
  virtual ~Object() = default;

  /// The dynamic class. Throws camp::ClassNotFound for a class that was never declared.
  const camp::Class& getCampClass() const;
  /// Value as text (see qsf/reflection/PropertyText.h). Throws a std::exception if there is no such property or it has
  /// no text.
  std::string getPropertyAsString(const std::string& property) const;
  /// Sets one property from text. Throws a std::exception for a missing property or a text that doesn't convert.
  void setPropertyByString(const std::string& property, const std::string& value);
  /// Text of the form `Name="value" Other="value"`. A malformed text, a missing property and a value that doesn't
  /// convert log at severity 3 and are skipped.
  void setPropertyValuesByString(const std::string& text);
};

}
CAMP_TYPE_NONCOPYABLE(qsf::Object)
