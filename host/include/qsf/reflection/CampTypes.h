#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"
#include "qsf/reflection/PropertyText.h"

#include <camp/type.hpp>
#include <camp/valuemapper.hpp>
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

/// How the host's value types pass through CAMP. Include it wherever a property of one of these types is declared.
/// Vectors, rotations, hashes and assets travel as text, spans of time as seconds. A text that doesn't convert throws
/// std::invalid_argument.
namespace qsf::detail {

/// Reads what `toText` and `fromText` of a specialisation do; every other kind of value is refused.
template <typename T> struct TextValueMapper {
  static const int type = camp::stringType;
  template <typename Other> [[noreturn]] static T from(const Other&) {
    CAMP_ERROR(camp::BadType(camp::mapType<Other>(), camp::stringType));
  }
};

}

namespace camp_ext {

template <> struct ValueMapper<glm::vec3> : qsf::detail::TextValueMapper<glm::vec3> {
  using qsf::detail::TextValueMapper<glm::vec3>::from;
  static std::string to(const glm::vec3& value) { return qsf::toText(value); }
  static glm::vec3 from(const std::string& text) { return qsf::vectorFromText(text); }
};

template <> struct ValueMapper<glm::quat> : qsf::detail::TextValueMapper<glm::quat> {
  using qsf::detail::TextValueMapper<glm::quat>::from;
  static std::string to(const glm::quat& value) { return qsf::toText(value); }
  static glm::quat from(const std::string& text) { return qsf::quaternionFromText(text); }
};

template <> struct ValueMapper<qsf::StringHash> : qsf::detail::TextValueMapper<qsf::StringHash> {
  using qsf::detail::TextValueMapper<qsf::StringHash>::from;
  static std::string to(qsf::StringHash value) { return qsf::toText(value); }
  static qsf::StringHash from(const std::string& text) { return qsf::stringHashFromText(text); }
};

template <> struct ValueMapper<qsf::AssetProxy> : qsf::detail::TextValueMapper<qsf::AssetProxy> {
  using qsf::detail::TextValueMapper<qsf::AssetProxy>::from;
  static std::string to(const qsf::AssetProxy& value) { return qsf::toText(value.getLocalAssetId()); }
  static qsf::AssetProxy from(const std::string& text) { return qsf::AssetProxy(qsf::stringHashFromText(text)); }
};

template <> struct ValueMapper<qsf::Time> {
  static const int type = camp::realType;
  static double to(qsf::Time value) { return value.getSecondsAsDouble(); }
  template <typename Other> static qsf::Time from(const Other& value) {
    return qsf::Time::fromSeconds(ValueMapper<double>::from(value));
  }
};

}
