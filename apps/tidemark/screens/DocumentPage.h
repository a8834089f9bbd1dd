#pragma once
#include <string>

namespace Rocket::Core {
class ElementDocument;
}

namespace tidemark::screens {

/// The document as a page by itself, which a browser shows as the game would place it in a window of 1280 by 720
/// pixels. Style sheets and pictures stand inside; a picture that isn't there, or of a kind that browsers don't show,
/// is a frame with its name. Nothing in it runs, and it loads nothing. Opened as PAGE#over it has no background, to lie
/// over others.
std::string documentPage(const Rocket::Core::ElementDocument& document);

/// For texts and quoted attributes of HTML.
std::string escapeHtml(const std::string& text);

}
