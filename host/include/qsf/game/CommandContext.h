#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>

#include <optional>
#include <vector>

namespace qsf {
class Entity;
}

namespace qsf::game {

/// Who is to do what, to whom and where. Made by whoever orders a command; lives as long as the checks and the
/// execution last, so a command that needs it later copies it.
struct QSF_API CommandContext {
  virtual ~CommandContext() = default;

  Entity* mCaller = nullptr;
  Entity* mTargetEntity = nullptr;
  std::optional<glm::vec3> mTargetPosition;
  /// All that were ordered, the caller among them.
  std::vector<Entity*> mCallers;
  /// Nobody has clicked: the unit, or a script, does it by itself.
  bool mIsAutomatism = false;
};

}
