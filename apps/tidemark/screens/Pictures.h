#pragma once
#include <string>
#include <string_view>

namespace tidemark::screens {

/// A picture as a text that stands in a page: the file beside the document or of that path, else a frame with its name.
std::string pictureAddress(const std::string& source, const std::string& documentUrl);

/// The text of styles with each `url(...)` replaced by what it names, or by `none`.
std::string inlinePictures(std::string_view styles, const std::string& documentUrl);

}
