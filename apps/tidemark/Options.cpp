#include "apps/tidemark/Options.h"

#include "apps/tidemark/session/Languages.h"

#include <fmt/format.h>

#include <charconv>
#include <cstdint>

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

CLI::Validator wholeNumber() {
  return CLI::Validator(
      [](std::string& text) {
        std::uint64_t number = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, fault] = std::from_chars(text.data(), end, number);
        return fault == std::errc() && stop == end
                   ? std::string()
                   : fmt::format("'{}' is no whole number from 0 to {}", text, UINT64_MAX);
      },
      "");
}

CLI::Validator languageCode() {
  return CLI::Validator(
      [](std::string& text) {
        return isLanguageCode(text)
                   ? std::string()
                   : fmt::format("'{}' is no language; one is written as in \"en\" or \"pt-BR\"", text);
      },
      "");
}

CLI::Validator notEmpty(std::string what) {
  return CLI::Validator(
      [what = std::move(what)](std::string& text) {
        return text.empty() ? fmt::format("{} is an empty text", what) : std::string();
      },
      "");
}

}
