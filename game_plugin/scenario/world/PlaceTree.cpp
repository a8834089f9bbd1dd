#include "game_plugin/scenario/world/PlaceTree.h"

#include <algorithm>
#include <cmath>

namespace script {

namespace {

constexpr std::uint32_t PLACES_OF_A_LEAF = 16;

float length(const glm::vec3& way) { return std::sqrt(glm::dot(way, way)); }

bool isFinite(const glm::vec3& place) {
  return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.z);
}

}

PlaceTree::PlaceTree(std::vector<glm::vec3> places) : mPlaces(std::move(places)) {
  std::erase_if(mPlaces, [](const glm::vec3& place) { return !isFinite(place); }); // no distance to those is a number
  if (!mPlaces.empty()) build(0, static_cast<std::uint32_t>(mPlaces.size()));
}

std::uint32_t PlaceTree::build(std::uint32_t begin, std::uint32_t end) {
  const auto index = static_cast<std::uint32_t>(mNodes.size());
  Node node{mPlaces[begin], mPlaces[begin], begin, end, 0};
  for (std::uint32_t i = begin; i < end; ++i) {
    node.minimum = glm::min(node.minimum, mPlaces[i]);
    node.maximum = glm::max(node.maximum, mPlaces[i]);
  }
  mNodes.push_back(node);
  if (end - begin <= PLACES_OF_A_LEAF || node.minimum == node.maximum) return index;
  const glm::vec3 extent = node.maximum - node.minimum;
  const int axis = extent.x >= extent.y ? (extent.x >= extent.z ? 0 : 2) : (extent.y >= extent.z ? 1 : 2);
  const std::uint32_t middle = begin + (end - begin) / 2;
  std::nth_element(mPlaces.begin() + begin, mPlaces.begin() + middle, mPlaces.begin() + end,
                   [axis](const glm::vec3& left, const glm::vec3& right) { return left[axis] < right[axis]; });
  build(begin, middle);
  mNodes[index].second = build(middle, end);
  return index;
}

std::size_t PlaceTree::countCloser(const glm::vec3& center, float range, std::size_t enough) const {
  std::size_t count = 0;
  std::uint32_t waiting[64]; // a half waits at each depth, and halving goes no deeper than a number's bits
  std::size_t waitingCount = 0;
  if (!mNodes.empty() && isFinite(center)) waiting[waitingCount++] = 0;
  while (waitingCount > 0 && count < enough) {
    const std::uint32_t index = waiting[--waitingCount];
    const Node& node = mNodes[index];
    // Rounding keeps the order of numbers, so the corners' distances, computed as those of places are, hold for all.
    const glm::vec3 below = node.minimum - center;
    const glm::vec3 above = node.maximum - center;
    const glm::vec3 nearest = glm::max(glm::max(below, -above), glm::vec3(0));
    const glm::vec3 farthest = glm::max(glm::abs(below), glm::abs(above));
    if (!(range > length(nearest))) continue;
    if (range > length(farthest)) {
      count += node.end - node.begin;
    } else if (node.second != 0) {
      waiting[waitingCount++] = node.second;
      waiting[waitingCount++] = index + 1;
    } else {
      for (std::uint32_t i = node.begin; i < node.end; ++i)
        if (range > length(mPlaces[i] - center)) ++count;
    }
  }
  return std::min(count, enough);
}

}
