#pragma once
#include <glm/glm.hpp>

#include <cstdint>
#include <vector>

namespace script {

/// Counts places near a place. Costs little more than the border of the range, however many places are within.
class PlaceTree {
public:
  explicit PlaceTree(std::vector<glm::vec3> places);
  /// Number of places whose distance is below the range. Ends at `enough`, if there are so many or more.
  std::size_t countCloser(const glm::vec3& center, float range, std::size_t enough) const;

private:
  /// A box round some places that stand side by side; its halves, if it has any, are the next node and `second`.
  struct Node {
    glm::vec3 minimum, maximum;
    std::uint32_t begin, end;
    std::uint32_t second; ///< 0 for a leaf
  };
  std::uint32_t build(std::uint32_t begin, std::uint32_t end);

  std::vector<glm::vec3> mPlaces;
  std::vector<Node> mNodes;
};

}
