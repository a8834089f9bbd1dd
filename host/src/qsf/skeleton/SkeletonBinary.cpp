#include "qsf/base/LoadError.h"
#include "qsf/skeleton/SkeletonFile.h"
#include "qsf/skeleton/SkeletonFileCheck.h"

#include <OgreDataStream.h>
#include <OgreSkeleton.h>
#include <OgreSkeletonSerializer.h>

#include <fstream>
#include <iterator>

namespace qsf {

void readSkeletonBinary(const std::string& file, Ogre::Skeleton& skeleton) {
  std::ifstream input(file, std::ios::binary);
  if (!input) throw LoadError(file, "", "can't be read");
  std::string bytes((std::istreambuf_iterator<char>(input)), std::istreambuf_iterator<char>());
  try {
    checkSkeletonBytes(bytes);
    Ogre::DataStreamPtr stream =
        std::make_shared<Ogre::MemoryDataStream>(file, bytes.data(), bytes.size(), false, true);
    Ogre::SkeletonSerializer().importSkeleton(stream, &skeleton);
  } catch (const Ogre::Exception& fault) {
    throw LoadError(file, "", fault.getDescription());
  } catch (const std::exception& fault) {
    throw LoadError(file, "", fault.what());
  }
}

}
