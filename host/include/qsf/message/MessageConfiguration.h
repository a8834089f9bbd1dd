#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"

#include <array>
#include <cstdint>

namespace qsf {

/// Names a message and up to three filters. A listener's filter that is uninitialised matches every value.
class QSF_API MessageConfiguration {
public:
  MessageConfiguration() = default;
  MessageConfiguration(StringHash id, std::uint64_t filter1 = UNINITIALIZED_ID,
                       std::uint64_t filter2 = UNINITIALIZED_ID, std::uint64_t filter3 = UNINITIALIZED_ID)
      : mId(id), mFilters{filter1, filter2, filter3} {}

  StringHash getId() const { return mId; }
  /// Filter 1, 2 or 3; uninitialised for other numbers.
  std::uint64_t getFilter(unsigned int number) const {
    return number >= 1 && number <= mFilters.size() ? mFilters[number - 1] : UNINITIALIZED_ID;
  }
  /// True if a listener registered with this configuration hears that message.
  bool matches(const MessageConfiguration& message) const {
    if (mId != message.mId) return false;
    for (std::size_t i = 0; i < mFilters.size(); ++i)
      if (mFilters[i] != UNINITIALIZED_ID && mFilters[i] != message.mFilters[i]) return false;
    return true;
  }

private:
  StringHash mId;
  std::array<std::uint64_t, 3> mFilters{UNINITIALIZED_ID, UNINITIALIZED_ID, UNINITIALIZED_ID};
};

}
