#pragma once
#include <string>
#include <string_view>

namespace tidemark::screens {

/// A picture as a text that stands in a page.
struct Picture {
  std::string address;
  bool isFrame = false; ///< with the name of a picture that isn't there; it has no size of its own
};
/// The file beside the document or of that path, else a frame.
Picture pictureOf(const std::string& source, const std::string& documentUrl);

/// The text of styles with each `url(...)` replaced by what it names, or by `none`.
std::string inlinePictures(std::string_view styles, const std::string& documentUrl);

}
