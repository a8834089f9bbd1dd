#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace qsf {

class GuiDocument;

/// The surface that documents stand on, and the cursor above it. Owned by the GUI; outlives its documents.
class QSF_API GuiContext {
public:
  GuiContext();
  GuiContext(const GuiContext&) = delete;
  GuiContext& operator=(const GuiContext&) = delete;

  /// Where the mouse device points: 0 to 1 over the window, from its upper left corner; the middle without a host.
  glm::vec2 getNormalizedMouseCursorPosition() const;
  /// Moves the mouse device there, clamped to the window; a coordinate that isn't a number stays as it was.
  void setNormalizedMouseCursorPosition(const glm::vec2& position);

  /// Living documents in the order of their making.
  const std::vector<GuiDocument*>& getDocuments() const { return mDocuments; }
  /// The first document of that name, or null.
  GuiDocument* findDocument(const std::string& name) const;
  /// The living document of that address; null for any other number.
  GuiDocument* findDocumentByAddress(std::uint64_t address) const;
  /// The visible document that was shown with focus or clicked last; null if there is none.
  GuiDocument* getFocusedDocument() const { return mFocused; }

private:
  friend class GuiDocument;
  std::vector<GuiDocument*> mDocuments;
  GuiDocument* mFocused = nullptr;
  std::uint64_t mLastAddress = 0;
};

}
