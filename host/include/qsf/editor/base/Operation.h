#pragma once
#include "qsf/Export.h"

#include <string>

namespace qsf::editor::base {

/// One thing that a user of the editor does and can take back. Owned by the operation manager, or by the compound that
/// it is part of.
class QSF_API Operation {
public:
  Operation() = default;
  virtual ~Operation() = default;
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;

  /// What the user reads in the list of steps.
  const std::string& getText() const { return mText; }
  void setText(const std::string& text) { mText = text; }

  /// Carries it out, for the first time or again. False if the world doesn't allow it; nothing has changed then.
  virtual bool redo() = 0;
  /// Takes back what redo did. Only called behind it.
  virtual void undo() = 0;

private:
  std::string mText;
};

}
