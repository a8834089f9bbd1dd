#include "apps/tidemark/screens/Pictures.h"

#include "apps/tidemark/screens/DocumentPage.h"

#include "Rocket/Core/SystemInterface.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/trim.hpp>

#include <array>
#include <filesystem>
#include <optional>

namespace tidemark::screens {

namespace {

struct Kind {
  std::string_view ending;
  std::string_view mediaType;
};
constexpr std::array<Kind, 6> KINDS = {{{".png", "image/png"},
                                        {".jpg", "image/jpeg"},
                                        {".jpeg", "image/jpeg"},
                                        {".gif", "image/gif"},
                                        {".webp", "image/webp"},
                                        {".svg", "image/svg+xml"}}};

std::string toBase64(std::string_view bytes) {
  constexpr std::string_view DIGITS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < 3; ++i)
      group = group << 8 | (at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0u);
    for (std::size_t i = 0; i < 4; ++i)
      text += at + i > bytes.size() ? '=' : DIGITS[group >> (18 - 6 * i) & 63u];
  }
  return text;
}

/// Nothing if there is no such picture, or browsers don't show its kind.
std::optional<std::string> readPicture(const std::string& source, const std::string& documentUrl) {
  Rocket::Core::SystemInterface* system = Rocket::Core::GetSystemInterface();
  const std::string ending =
      boost::algorithm::to_lower_copy(std::filesystem::path(source).extension().generic_string());
  const auto* kind = std::find_if(KINDS.begin(), KINDS.end(), [&](const Kind& each) { return each.ending == ending; });
  if (!system || kind == KINDS.end()) return std::nullopt;
  const std::string beside =
      (std::filesystem::path(documentUrl).parent_path() / source).lexically_normal().generic_string();
  Rocket::Core::String bytes;
  if (!system->LoadFile(beside, bytes) && !system->LoadFile(source, bytes)) return std::nullopt;
  return "data:" + std::string(kind->mediaType) + ";base64," + toBase64(bytes);
}

std::string frameAddress(const std::string& source) {
  const std::string picture =
      "<svg xmlns=\"http://www.w3.org/2000/svg\"><rect width=\"100%\" height=\"100%\" fill=\"#20262d\" "
      "stroke=\"#93a1ae\" stroke-width=\"4\" stroke-dasharray=\"5 4\"/><text x=\"5\" y=\"15\" font-size=\"10\" "
      "font-family=\"sans-serif\" fill=\"#e8e6df\">" +
      escapeHtml(std::filesystem::path(source).filename().generic_string()) + "</text></svg>";
  return "data:image/svg+xml;base64," + toBase64(picture);
}

}

Picture pictureOf(const std::string& source, const std::string& documentUrl) {
  if (auto picture = readPicture(source, documentUrl)) return {std::move(*picture), false};
  return {frameAddress(source), true};
}

std::string inlinePictures(std::string_view styles, const std::string& documentUrl) {
  constexpr std::string_view OPEN = "url(";
  std::string text;
  for (std::size_t at = 0; at < styles.size();) {
    const std::size_t open = styles.find(OPEN, at);
    text += styles.substr(at, open == std::string_view::npos ? open : open - at);
    if (open == std::string_view::npos) break;
    const std::size_t close = std::min(styles.find(')', open), styles.size());
    std::string source(styles.substr(open + OPEN.size(), close - open - OPEN.size()));
    boost::algorithm::trim_if(
        source, [](char character) { return std::string_view(" \t\"'").find(character) != std::string_view::npos; });
    const auto picture = readPicture(source, documentUrl);
    text += picture ? "url(" + *picture + ")" : "none";
    at = std::min(close + 1, styles.size());
  }
  return text;
}

}
