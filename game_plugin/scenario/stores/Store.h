#pragma once
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace script {

namespace detail {
/// A number no store has had before; zero and all ones are never given out.
std::uint32_t nextStoreEpoch();
}

/// The global mark `§` is one byte in a code page and two in UTF-8; scripts of both share the global stores.
enum class StoreMarks : unsigned char { AS_WRITTEN, ONE };

namespace detail {
/// The name with its marks in UTF-8, written to `buffer` if that differs.
std::string_view withOneMark(std::string_view name, std::string& buffer);
}

/// Named values in the order of their first use. With one mark, names that differ only in the mark's encoding are one
/// name. Look-ups give the first entry of a name; entries are appended and,
/// seldom, erased. Each erase gives the store a new epoch, so that a remembered index is valid as long as the epoch is
/// the same. References to values hold until an entry is erased, for floats until one is appended.
template <class T> class Store {
public:
  static constexpr std::size_t NOT_FOUND = ~std::size_t{0};

  explicit Store(StoreMarks marks = StoreMarks::AS_WRITTEN) : mMarks(marks) {}

  std::size_t size() const { return mNames.size(); }
  const std::string& name(std::size_t index) const { return mNames[index]; }
  T& value(std::size_t index) { return mValues[index]; }
  const T& value(std::size_t index) const { return mValues[index]; }
  std::uint32_t epoch() const { return mEpoch; }
  /// The name as this store spells it.
  std::string spell(std::string_view name) const {
    std::string buffer;
    return std::string(mMarks == StoreMarks::ONE ? detail::withOneMark(name, buffer) : name);
  }

  std::size_t find(std::string_view written) const {
    std::string buffer;
    const std::string_view name = mMarks == StoreMarks::ONE ? detail::withOneMark(written, buffer) : written;
    if (size() <= LINEAR_LIMIT) {
      for (std::size_t i = 0; i < mNames.size(); ++i)
        if (mNames[i] == name) return i;
      return NOT_FOUND;
    }
    for (; mIndexed < mNames.size(); ++mIndexed)
      mIndex.try_emplace(mNames[mIndexed], static_cast<std::uint32_t>(mIndexed));
    const auto found = mIndex.find(name);
    return found == mIndex.end() ? NOT_FOUND : found->second;
  }
  /// Index of the name, appended with an empty value if it is missing.
  std::size_t findOrAppend(std::string_view name) {
    const std::size_t found = find(name);
    return found != NOT_FOUND ? found : append(name, T());
  }
  std::size_t append(std::string_view written, T value) {
    std::string buffer;
    mNames.emplace_back(mMarks == StoreMarks::ONE ? detail::withOneMark(written, buffer) : written);
    mValues.push_back(std::move(value));
    return mNames.size() - 1;
  }
  /// Throws std::out_of_range past the end.
  void erase(std::size_t index) {
    (void)mNames.at(index);
    mNames.erase(mNames.begin() + static_cast<std::ptrdiff_t>(index));
    mValues.erase(mValues.begin() + static_cast<std::ptrdiff_t>(index));
    mIndex.clear();
    mIndexed = 0;
    mEpoch = detail::nextStoreEpoch();
  }

private:
  static constexpr std::size_t LINEAR_LIMIT = 8;
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  // Numbers lie side by side for the tick's sake; other values must not move when an entry is appended.
  using Values = std::conditional_t<std::is_same_v<T, float>, std::vector<T>, std::deque<T>>;

  std::deque<std::string> mNames;
  Values mValues;
  // Built when first needed; the views point into mNames, whose elements don't move on append.
  mutable std::unordered_map<std::string_view, std::uint32_t, Hash, std::equal_to<>> mIndex;
  mutable std::size_t mIndexed = 0;
  StoreMarks mMarks;
  std::uint32_t mEpoch = detail::nextStoreEpoch();
};

}
