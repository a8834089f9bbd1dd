#pragma once
#include "qsf/game/Command.h"

namespace em5 {

struct CommandContext;

/// A command of the game: it has a priority and an icon. Its contexts are always em5::CommandContext.
class QSF_API Command : public qsf::game::Command {
  CAMP_RTTI()
public:
  struct IconSettings {
    std::string mMouseIcon;   ///< the cursor's icon over a target; empty for the usual one
    bool mShowButton = false; ///< whether a selected unit's bar has a button for it
    std::string mButtonText;
    std::string mTooltipId; ///< of a text in the translations
  };

  Command(qsf::game::CommandManager* manager, qsf::StringHash id) : qsf::game::Command(manager, id) {}
  static void declareCamp();

  /// Of the commands that a click could mean, the one of the highest priority is executed.
  int getPriority() const { return mPriority; }
  virtual const IconSettings& getIconSettings() const { return mIconSettings; }
  /// Whether a target is lit up under the cursor.
  virtual bool highlightTarget() const { return true; }

protected:
  void setPriority(int priority) { mPriority = priority; }
  IconSettings mIconSettings;

private:
  int mPriority = 0;
};

}
CAMP_TYPE_NONCOPYABLE(em5::Command)
