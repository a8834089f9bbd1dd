#pragma once
#include <btBulletCollisionCommon.h>

namespace qsf {

/// Whether two boxes touch or overlap, each with its place. Closer than `tolerance` counts as touching.
///
/// All shapes of the world are boxes, for which a comparison along fifteen axes gives the exact answer. The library's
/// own question measures distances step by step, for shapes of any kind, and takes a hundred times as long.
bool boxesTouch(const btBoxShape& first, const btTransform& firstPlace, const btBoxShape& second,
                const btTransform& secondPlace, btScalar tolerance);

}
