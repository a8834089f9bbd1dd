#pragma once
#include "qsf/Export.h"

#include <set>
#include <string>

namespace em5 {

/// The rules of the freeplay game: which seasonal events are on. Owned by the freeplay system; what is toggled lasts as
/// long as the host.
class QSF_API FreeplayGameMode {
public:
  /// Switches a season on or off; any name is accepted. Noted in the call recorder as
  /// `em5::FreeplayGameMode::toggleSeasonalEvent`.
  void toggleSeasonalEvent(const std::string& name, bool enable);
  bool isSeasonalEventEnabled(const std::string& name) const { return mSeasonalEvents.count(name) != 0; }
  /// Names of the seasons that are on, ascending.
  const std::set<std::string>& getSeasonalEvents() const { return mSeasonalEvents; }

private:
  std::set<std::string> mSeasonalEvents;
};

}
