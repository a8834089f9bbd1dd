#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>

#include <string>
#include <vector>

namespace qsf {

class GuiDocument;

/// The surface that documents stand on, and the cursor above it. Owned by the GUI; outlives its documents.
class QSF_API GuiContext {
public:
  GuiContext() = default;
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

private:
  friend class GuiDocument;
  std::vector<GuiDocument*> mDocuments;
};

}
