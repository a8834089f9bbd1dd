#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"

#include <array>
#include <cstdint>
#include <span>

namespace qsf {

/// Names a message and up to three filters. A listener's filter that is uninitialised matches every value.
class QSF_API MessageConfiguration {
public:
  static constexpr std::size_t MAXIMUM_FILTERS = 3;

  MessageConfiguration() = default;
  MessageConfiguration(StringHash id) : mId(id) {}
  MessageConfiguration(StringHash id, std::uint64_t filter1)
      : mId(id), mFilters{filter1, UNINITIALIZED_ID, UNINITIALIZED_ID}, mNumberOfFilters(1) {}
  MessageConfiguration(StringHash id, std::uint64_t filter1, std::uint64_t filter2)
      : mId(id), mFilters{filter1, filter2, UNINITIALIZED_ID}, mNumberOfFilters(2) {}
  MessageConfiguration(StringHash id, std::uint64_t filter1, std::uint64_t filter2, std::uint64_t filter3)
      : mId(id), mFilters{filter1, filter2, filter3}, mNumberOfFilters(3) {}
  /// With the filters of a list; those behind the third are left out.
  MessageConfiguration(StringHash id, std::span<const std::uint64_t> filters);

  StringHash getId() const { return mId; }
  /// Filter 1, 2 or 3. A number beyond the filters that were given is reported through ErrorHandling and throws
  /// ReportedError.
  std::uint64_t getFilter(unsigned int number) const;
  /// The given filters in their order.
  std::span<const std::uint64_t> getFilters() const { return {mFilters.data(), mNumberOfFilters}; }
  /// True if a listener registered with this configuration hears that message.
  bool matches(const MessageConfiguration& message) const {
    if (mId != message.mId) return false;
    for (std::size_t i = 0; i < mFilters.size(); ++i)
      if (mFilters[i] != UNINITIALIZED_ID && mFilters[i] != message.mFilters[i]) return false;
    return true;
  }

private:
  StringHash mId;
  std::array<std::uint64_t, MAXIMUM_FILTERS> mFilters{UNINITIALIZED_ID, UNINITIALIZED_ID, UNINITIALIZED_ID};
  std::size_t mNumberOfFilters = 0;
};

}
