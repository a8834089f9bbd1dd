#include "qsf/message/MessageConfiguration.h"

#include "qsf/log/ErrorHandling.h"

#include <algorithm>

namespace qsf {

MessageConfiguration::MessageConfiguration(StringHash id, std::span<const std::uint64_t> filters)
    : mId(id), mNumberOfFilters(std::min(filters.size(), MAXIMUM_FILTERS)) {
  std::copy_n(filters.begin(), mNumberOfFilters, mFilters.begin());
}

std::uint64_t MessageConfiguration::getFilter(unsigned int number) const {
  if (number >= 1 && number <= mNumberOfFilters) return mFilters[number - 1];
  ErrorHandling::reportAndThrow("Invalid index for MessageConfiguration::getFilter()");
}

}
