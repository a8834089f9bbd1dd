#include "qsf/base/NearNames.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace qsf {

namespace {

char lower(char character) { return static_cast<char>(std::tolower(static_cast<unsigned char>(character))); }

/// Number of characters to insert, remove or replace, whatever their case.
std::size_t editDistance(const std::string& left, const std::string& right) {
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= left.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t k = 1; k <= right.size(); ++k) {
      const std::size_t replaced = diagonal + (lower(left[i - 1]) == lower(right[k - 1]) ? 0 : 1);
      diagonal = row[k];
      row[k] = std::min({row[k] + 1, row[k - 1] + 1, replaced});
    }
  }
  return row.back();
}

/// `qsf::game::TimeOfDayComponent` and `TimeOfDayComponent` mean the same to a hurried author.
std::string lastPart(const std::string& name) { return name.substr(name.find_last_of(":/") + 1); }

/// `Transform` stands for `TransformComponent`: the rest of a long name is soon forgotten.
bool isBeginningOf(const std::string& name, const std::string& candidate) {
  constexpr std::size_t SHORTEST_BEGINNING = 3;
  return name.size() >= SHORTEST_BEGINNING && name.size() < candidate.size() &&
         std::equal(name.begin(), name.end(), candidate.begin(),
                    [](char left, char right) { return lower(left) == lower(right); });
}

}

std::vector<std::string> findNearNames(const std::string& name, const std::vector<std::string>& candidates) {
  constexpr std::size_t LONGEST_NAME = 200; // a longer one is no typing error, and the distance would be dear
  constexpr std::size_t MOST_NAMES = 3;
  if (name.size() > LONGEST_NAME) return {};
  std::vector<std::pair<std::size_t, std::string>> near;
  for (const std::string& candidate : candidates) {
    if (candidate.size() > LONGEST_NAME) continue;
    const std::size_t distance =
        isBeginningOf(lastPart(name), lastPart(candidate))
            ? 1
            : std::min(editDistance(name, candidate), editDistance(lastPart(name), lastPart(candidate)));
    if (distance <= std::max<std::size_t>(1, lastPart(name).size() / 3)) near.emplace_back(distance, candidate);
  }
  std::sort(near.begin(), near.end());
  std::vector<std::string> names;
  for (std::size_t i = 0; i < std::min(near.size(), MOST_NAMES); ++i)
    names.push_back(std::move(near[i].second));
  return names;
}

std::string nearNamesHint(const std::string& name, const std::vector<std::string>& candidates) {
  std::string hint;
  for (const std::string& near : findNearNames(name, candidates))
    hint += (hint.empty() ? "\"" : " or \"") + near + "\"";
  return hint.empty() ? hint : " (did you mean " + hint + "?)";
}

}
