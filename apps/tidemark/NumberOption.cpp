#include "apps/tidemark/NumberOption.h"

#include <fmt/format.h>

namespace tidemark {

CLI::Validator numberFrom(double minimum, double maximum) {
  return CLI::Validator(
      [minimum, maximum](std::string& text) {
        double value = 0;
        if (CLI::detail::lexical_cast(text, value) && value >= minimum && value <= maximum) return std::string();
        return fmt::format("'{}' is no number from {} to {}", text, minimum, maximum);
      },
      "");
}

}
