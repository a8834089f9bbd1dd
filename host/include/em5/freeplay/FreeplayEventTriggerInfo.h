#pragma once
#include "qsf/Export.h"

#include <string>
#include <utility>
#include <vector>

namespace em5 {

/// Properties by name, with their values as text, in the order in which they are set.
using EventProperties = std::vector<std::pair<std::string, std::string>>;

/// Why an event is triggered, and how it is to be. A value.
class QSF_API FreeplayEventTriggerInfo {
public:
  /// Who triggers: 0 the game or a script by itself, 1 a script that drives the event. The properties are those of a
  /// pool's entry.
  explicit FreeplayEventTriggerInfo(unsigned int source, EventProperties properties = {})
      : mSource(source), mProperties(std::move(properties)) {}
  unsigned int getSource() const { return mSource; }
  const EventProperties& getProperties() const { return mProperties; }

private:
  unsigned int mSource;
  EventProperties mProperties;
};

}
