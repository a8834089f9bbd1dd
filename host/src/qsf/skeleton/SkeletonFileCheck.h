#pragma once
#include <string>

namespace qsf {

/// OGRE trusts its binary files: an index beyond the bones is a wild access, bones that are each other's parents a walk
/// without end. So the bytes are gone through first, as OGRE will read them. Throws std::runtime_error, whose text says
/// what is wrong and at which byte; what passes OGRE can read.
void checkSkeletonBytes(const std::string& bytes);

}
