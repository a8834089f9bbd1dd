#pragma once
#include <box2d/b2_dynamic_tree.h>
#include <btBulletCollisionCommon.h>

namespace qsf {

/// Finds the boxes of a collision world near a box or along a ray. Boxes of a map stand beside each other on the
/// ground, so a tree over x and z finds them; what remains is compared in three dimensions.
///
/// It takes the place of the library's own broadphases for two reasons. Those note every pair of boxes that overlap,
/// which nobody asks for here and which fills the memory when a script puts thousands of units on one spot. And their
/// tree isn't balanced: entities placed in a row or on one spot make it as deep as they are many, so that each further
/// move costs them all. This one stays as deep as the logarithm, and a small move costs a comparison.
class TreeBroadphase : public btBroadphaseInterface {
public:
  TreeBroadphase();
  ~TreeBroadphase() override;

  btBroadphaseProxy* createProxy(const btVector3& minimum, const btVector3& maximum, int shapeType, void* userPointer,
                                 int group, int mask, btDispatcher* dispatcher) override;
  void destroyProxy(btBroadphaseProxy* proxy, btDispatcher* dispatcher) override;
  void setAabb(btBroadphaseProxy* proxy, const btVector3& minimum, const btVector3& maximum,
               btDispatcher* dispatcher) override;
  void getAabb(btBroadphaseProxy* proxy, btVector3& minimum, btVector3& maximum) const override;
  void rayTest(const btVector3& from, const btVector3& to, btBroadphaseRayCallback& callback,
               const btVector3& minimum = btVector3(0, 0, 0), const btVector3& maximum = btVector3(0, 0, 0)) override;
  void aabbTest(const btVector3& minimum, const btVector3& maximum, btBroadphaseAabbCallback& callback) override;
  void calculateOverlappingPairs(btDispatcher*) override {} // no pairs are kept
  btOverlappingPairCache* getOverlappingPairCache() override { return &mNoPairs; }
  const btOverlappingPairCache* getOverlappingPairCache() const override { return &mNoPairs; }
  void getBroadphaseAabb(btVector3& minimum, btVector3& maximum) const override;
  void printStats() override {}

private:
  btNullPairCache mNoPairs;
  b2DynamicTree mTree; ///< a proxy's id in it is its unique id
};

}
