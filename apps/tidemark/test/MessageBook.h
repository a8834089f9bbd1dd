#pragma once
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// How often each combination of filters was sent with a message. Only messages that are watched are kept, so that a
/// long test stays small. Owned by the test's session.
class MessageBook {
public:
  void watch(std::uint32_t id) { mWatched.insert(id); }
  void add(std::uint32_t id, std::span<const std::uint64_t> filters);
  /// Messages whose filters begin with those.
  std::uint64_t count(std::uint32_t id, std::span<const std::uint64_t> leading) const;
  /// What has come, for a failure's report: "(100, 5) (101)", or "none".
  std::string describe(std::uint32_t id) const;

private:
  std::set<std::uint32_t> mWatched;
  std::map<std::uint32_t, std::map<std::vector<std::uint64_t>, std::uint64_t>> mCounts;
};

}
