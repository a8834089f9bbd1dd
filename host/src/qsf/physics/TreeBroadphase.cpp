#include "qsf/physics/TreeBroadphase.h"

namespace qsf {

namespace {

b2Vec2 groundPoint(const btVector3& point) { return {static_cast<float>(point.x()), static_cast<float>(point.z())}; }

b2AABB groundBox(const btVector3& minimum, const btVector3& maximum) {
  b2AABB box;
  box.lowerBound = groundPoint(minimum);
  box.upperBound = groundPoint(maximum);
  return box;
}

/// Passes on what the tree found in the ground plane and what `isMet(proxy)` in three dimensions.
template <class IsMet> struct Visitor {
  const b2DynamicTree& tree;
  btBroadphaseAabbCallback& callback;
  IsMet isMet;

  bool QueryCallback(int32 id) {
    const auto* proxy = static_cast<const btBroadphaseProxy*>(tree.GetUserData(id));
    if (isMet(*proxy)) callback.process(proxy);
    return true; // further
  }
  float RayCastCallback(const b2RayCastInput& input, int32 id) {
    QueryCallback(id);
    return input.maxFraction; // further, the whole ray
  }
};

}

TreeBroadphase::TreeBroadphase() = default;
TreeBroadphase::~TreeBroadphase() = default;

btBroadphaseProxy* TreeBroadphase::createProxy(const btVector3& minimum, const btVector3& maximum, int,
                                               void* userPointer, int group, int mask, btDispatcher*) {
  auto* proxy = new btBroadphaseProxy(minimum, maximum, userPointer, group, mask); // owned till destroyProxy
  proxy->m_uniqueId = mTree.CreateProxy(groundBox(minimum, maximum), proxy);
  return proxy;
}

void TreeBroadphase::destroyProxy(btBroadphaseProxy* proxy, btDispatcher*) {
  mTree.DestroyProxy(proxy->m_uniqueId);
  delete proxy;
}

void TreeBroadphase::setAabb(btBroadphaseProxy* proxy, const btVector3& minimum, const btVector3& maximum,
                             btDispatcher*) {
  proxy->m_aabbMin = minimum;
  proxy->m_aabbMax = maximum;
  mTree.MoveProxy(proxy->m_uniqueId, groundBox(minimum, maximum), b2Vec2(0, 0));
}

void TreeBroadphase::getAabb(btBroadphaseProxy* proxy, btVector3& minimum, btVector3& maximum) const {
  minimum = proxy->m_aabbMin;
  maximum = proxy->m_aabbMax;
}

void TreeBroadphase::rayTest(const btVector3& from, const btVector3& to, btBroadphaseRayCallback& callback,
                             const btVector3& minimum, const btVector3& maximum) {
  const auto isMet = [&](const btBroadphaseProxy& proxy) {
    // What is cast along the ray has the extent from `minimum` to `maximum`; a mere ray has none.
    const btVector3 bounds[2] = {proxy.m_aabbMin - maximum, proxy.m_aabbMax - minimum};
    btScalar distance = 1;
    return btRayAabb2(from, callback.m_rayDirectionInverse, callback.m_signs, bounds, distance, 0,
                      callback.m_lambda_max);
  };
  Visitor<decltype(isMet)> visitor{mTree, callback, isMet};
  btVector3 lower = from;
  btVector3 upper = from;
  lower.setMin(to);
  upper.setMax(to);
  const b2RayCastInput ray{groundPoint(from), groundPoint(to), 1};
  // The tree follows lines only: what has an extent, and a ray straight down, takes all that lies below its way.
  const bool isLine = minimum.isZero() && maximum.isZero() && (ray.p2 - ray.p1).LengthSquared() > b2_epsilon;
  if (isLine)
    mTree.RayCast(&visitor, ray);
  else
    mTree.Query(&visitor, groundBox(lower + minimum, upper + maximum));
}

void TreeBroadphase::aabbTest(const btVector3& minimum, const btVector3& maximum, btBroadphaseAabbCallback& callback) {
  const auto isMet = [&](const btBroadphaseProxy& proxy) {
    return TestAabbAgainstAabb2(minimum, maximum, proxy.m_aabbMin, proxy.m_aabbMax);
  };
  Visitor<decltype(isMet)> visitor{mTree, callback, isMet};
  mTree.Query(&visitor, groundBox(minimum, maximum));
}

void TreeBroadphase::getBroadphaseAabb(btVector3& minimum, btVector3& maximum) const {
  // No border: the library asks in order to draw it.
  minimum.setValue(-BT_LARGE_FLOAT, -BT_LARGE_FLOAT, -BT_LARGE_FLOAT);
  maximum.setValue(BT_LARGE_FLOAT, BT_LARGE_FLOAT, BT_LARGE_FLOAT);
}

}
