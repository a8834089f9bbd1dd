#pragma once
#include "apps/tidemark/test/directives/Words.h"

#include <string>

namespace Rocket::Core {
class Element;
}
namespace qsf {
class GuiDocument;
}

namespace tidemark::test {

class TestSession;

/// The document that a directive names: one of the game's (`GUIDOC_...`, `mainmenu_ingame`, `drone`, `debug_gui`), one
/// of the module's, or a script's by its unique id. Null if there is none.
qsf::GuiDocument* findDocument(const TestSession& session, const std::string& name);

/// DOC and ELEMENT of a directive.
struct ElementReference {
  std::string document;
  std::string element; ///< an id, with child numbers behind it
};
ElementReference takeElementReference(WordCursor& words);

/// Null if there is no such element in the document.
Rocket::Core::Element* findElement(const qsf::GuiDocument& document, const std::string& element);
/// Throws NotThere for a missing document or element.
Rocket::Core::Element& requireElement(const TestSession& session, const ElementReference& reference);
/// Its document is visible, and neither it nor a parent has `display: none`. Throws NotThere.
bool isElementVisible(const TestSession& session, const ElementReference& reference);

}
