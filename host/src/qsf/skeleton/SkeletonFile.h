#pragma once
#include <string>

namespace Ogre {
class Skeleton;
}

namespace qsf {

/// Fills an empty skeleton from a file: a `.json` one is a description, any other OGRE's binary form. The bones stand
/// in their rest pose then. Throws LoadError; the skeleton then holds what was read so far.
void readSkeletonFile(const std::string& file, Ogre::Skeleton& skeleton);

/// The two forms.
void readSkeletonJson(const std::string& file, Ogre::Skeleton& skeleton);
void readSkeletonBinary(const std::string& file, Ogre::Skeleton& skeleton);

}
