#pragma once
#include "qsf/base/UniqueInstance.h"

#include <string>

namespace em5 {

/// What the player has set. Owned by the host session.
class QSF_API GameSettingsGroup : public qsf::UniqueInstanceTarget<GameSettingsGroup> {
public:
  /// Empty without an account.
  const std::string& getSavedAccountname() const { return mSavedAccountname; }
  void setSavedAccountname(const std::string& name) { mSavedAccountname = name; }

private:
  std::string mSavedAccountname;
};

}
