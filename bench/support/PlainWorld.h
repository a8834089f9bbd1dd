#pragma once
#include <glm/glm.hpp>

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace qsf {
class Map;
}

namespace tidemark::bench {

/// The same map as plain structs, and what conditions and effects find out of it or do with it as plain loops over what
/// there is to find: the floor under bench/world. The loops leave their result in `out`, as scripts do in a list.
class PlainWorld {
public:
  using Ids = std::vector<std::uint64_t>;

  /// Takes over what stands on the map. `center` is the unit and `area` the box round which the loops ask; `near` are
  /// the ids that stand there, `all` the other ones.
  PlainWorld(const qsf::Map& map, std::uint64_t center, std::uint64_t area, Ids near, Ids all);

  Ids out;
  const Ids& near() const { return mNear; }
  const Ids& all() const { return mAll; }

  void findInCircle(float radius);
  void hitByRay(const glm::vec3& from, const glm::vec3& direction);
  void findPrefabInCircle(float radius);
  void findPersonsInArea();
  void findInArea(const Ids& list);
  void findCloser(const Ids& list, float distance);
  void findFarther(const Ids& list, float distance);
  void findPersons(const Ids& list);
  void findKnown(const Ids& list);
  void pickClosest(const Ids& list, std::size_t number) { pickClosestTo(mCenter.position, list, number); }
  void drawPersons(std::size_t number, float radius);
  /// The first cluster of so many within the range of one of them, whose seeds are drawn without repeating one; if
  /// there is none, one of them and those closest to it.
  void pickCluster(const Ids& list, std::size_t number, float range);
  void addAll(const Ids& list);
  void listAll();
  void moveThereAndBack(std::uint64_t id);
  void makeAndDestroy(std::uint64_t id);

private:
  struct Unit {
    std::uint64_t id = 0;
    glm::vec3 position{0};
    glm::vec3 half{0}; ///< of its box, whose middle is `offset` above the position
    float offset = 0;
    std::uint32_t prefab = 0;
    bool isPerson = false;
  };
  /// A component that is made of its own and found by its class.
  struct Part {
    virtual ~Part() = default;
    std::uint32_t componentClass = 0;
    float values[12] = {};
  };
  struct MadeUnit {
    Unit unit;
    std::vector<std::unique_ptr<Part>> parts;
  };

  const Unit* find(std::uint64_t id) const;
  void pickClosestTo(const glm::vec3& center, const Ids& list, std::size_t number);
  float distance(const Unit& unit) const { return glm::length(unit.position - mCenter.position); }
  bool isInArea(const Unit& unit) const;
  std::uint64_t draw() { return (mRandom = mRandom * 6364136223846793005u + 1442695040888963407u) >> 33; }
  static std::uint64_t cellOf(const glm::vec3& position);
  void move(Unit& unit, const glm::vec3& position);

  std::vector<Unit> mUnits;
  std::unordered_map<std::uint64_t, std::size_t> mIndices;
  std::unordered_map<std::uint64_t, Ids> mCells;
  std::unordered_map<std::uint32_t, std::map<std::uint64_t, Part*>> mParts;
  std::unordered_map<std::uint64_t, std::unique_ptr<MadeUnit>> mMade;
  std::vector<Unit> mFound; ///< what stands round the centre, all that a local loop looks at
  Unit mCenter, mArea;
  Ids mNear, mAll;
  std::uint64_t mRandom = 1;
};

}
