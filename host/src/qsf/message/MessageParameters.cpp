#include "qsf/message/MessageParameters.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>

namespace qsf {

bool MessageParameters::convert(const std::string& text, std::string& value) {
  value = text;
  return true;
}

bool MessageParameters::convert(const std::string& text, bool& value) {
  if (text != "0" && text != "1" && text != "false" && text != "true") return false;
  value = text == "1" || text == "true";
  return true;
}

bool MessageParameters::convert(const std::string& text, double& value) {
  double number = 0;
  if (!boost::conversion::try_lexical_convert(text, number)) return false;
  value = number;
  return true;
}

bool MessageParameters::convert(const std::string& text, std::int64_t& value) {
  std::int64_t number = 0;
  if (!boost::conversion::try_lexical_convert(text, number)) return false;
  value = number;
  return true;
}

bool MessageParameters::convert(const std::string& text, std::uint64_t& value) {
  std::uint64_t number = 0;
  // A sign would be taken for a number modulo 2^64.
  if (text.starts_with('-') || !boost::conversion::try_lexical_convert(text, number)) return false;
  value = number;
  return true;
}

}
