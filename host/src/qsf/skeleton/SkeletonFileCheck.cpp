#include "qsf/skeleton/SkeletonFileCheck.h"

#include "qsf/skeleton/SkeletonLimits.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <stdexcept>

namespace qsf {

namespace {

static_assert(sizeof(float) == 4);

/// The parts of a file, by the numbers that stand in front of them.
enum Chunk : std::uint16_t {
  HEADER = 0x1000,
  BLEND_MODE = 0x1010,
  BONE = 0x2000,
  BONE_PARENT = 0x3000,
  ANIMATION = 0x4000,
  BASE_INFO = 0x4010,
  TRACK = 0x4100,
  KEY_FRAME = 0x4110,
  LINK = 0x5000,
};

constexpr std::size_t CHUNK_HEADER_SIZE = 6;
/// What a bone and a key frame count without a scale; a bone's name is not counted.
constexpr std::uint32_t BONE_SIZE = 36;
constexpr std::uint32_t KEY_FRAME_SIZE = 38;

class Check {
public:
  explicit Check(const std::string& bytes) : mBytes(bytes) {}

  void run() {
    checkHeader();
    while (!atEnd())
      checkPart();
    if (mBones.empty()) fail("there is no bone");
    if (*mBones.rbegin() + 1u != mBones.size()) fail("the numbers of the bones have gaps");
    for (const auto& [child, parent] : mParents)
      checkDescent(child);
  }

private:
  struct Part {
    std::uint16_t chunk;
    std::uint32_t length;
  };

  [[noreturn]] void fail(const std::string& fault) const {
    throw std::runtime_error("byte " + std::to_string(mPosition) + ": " + fault);
  }
  bool atEnd() const { return mPosition >= mBytes.size(); }
  template <class T> T read() {
    T value{};
    if (mBytes.size() - mPosition < sizeof(T)) fail("the file ends too early");
    std::memcpy(&value, mBytes.data() + mPosition, sizeof(T));
    mPosition += sizeof(T);
    return value;
  }
  void readFloats(int count) {
    for (int i = 0; i < count; ++i)
      if (!(std::abs(read<float>()) <= FARTHEST)) fail("a number is too large or none");
  }
  void readRotation() {
    float sum = 0;
    for (int i = 0; i < 4; ++i)
      sum += std::abs(read<float>());
    if (!(sum > 0 && sum <= FARTHEST)) fail("a rotation has no direction");
  }
  std::string readText() {
    const std::size_t end = mBytes.find('\n', mPosition);
    if (end == std::string::npos) fail("a text has no end");
    std::string text = mBytes.substr(mPosition, end - mPosition);
    // OGRE looks for the end of a text behind each of them, and would read on in the wrong place.
    if (text.find('\0') != std::string::npos) fail("a text holds a zero byte");
    mPosition = end + 1;
    return text;
  }
  Part readPart() {
    const auto chunk = read<std::uint16_t>();
    return {chunk, read<std::uint32_t>()};
  }
  /// Takes the part's header if it is of that kind.
  bool takePart(Chunk kind, Part& part) {
    if (atEnd()) return false;
    const std::size_t before = mPosition;
    part = readPart();
    if (part.chunk == kind) return true;
    mPosition = before;
    return false;
  }

  void checkHeader() {
    if (read<std::uint16_t>() != HEADER) fail("this is no skeleton file of this machine's byte order");
    const std::string version = readText();
    if (version != "[Serializer_v1.10]" && version != "[Serializer_v1.80]")
      fail("OGRE doesn't read the version of the file");
  }

  void checkPart() {
    const Part part = readPart();
    switch (part.chunk) {
    case BLEND_MODE:
      read<std::uint16_t>();
      break;
    case BONE:
      checkBone(part.length);
      break;
    case BONE_PARENT:
      checkParent();
      break;
    case ANIMATION:
      checkAnimation();
      break;
    case LINK:
      readText();
      readFloats(1);
      break;
    default:
      mPosition -= CHUNK_HEADER_SIZE;
      fail("an unknown part begins here");
    }
  }

  void checkBone(std::uint32_t length) {
    if (!mBoneNames.insert(readText()).second) fail("two bones have one name");
    const auto number = read<std::uint16_t>();
    if (number >= MOST_BONES) fail("the number of a bone is too high");
    if (!mBones.insert(number).second) fail("two bones have one number");
    readFloats(3);
    readRotation();
    if (length > BONE_SIZE) readFloats(3);
  }
  void checkParent() {
    const std::uint16_t child = readBoneNumber();
    if (!mParents.emplace(child, readBoneNumber()).second) fail("a bone has two parents");
  }
  std::uint16_t readBoneNumber() {
    const auto number = read<std::uint16_t>();
    if (!mBones.contains(number)) fail("there is no bone " + std::to_string(number));
    return number;
  }
  void checkDescent(std::uint16_t bone) const {
    std::size_t steps = 0;
    for (auto parent = mParents.find(bone); parent != mParents.end(); parent = mParents.find(parent->second))
      if (++steps > mBones.size()) fail("a bone is its own ancestor");
  }

  void checkAnimation() {
    if (!mAnimationNames.insert(readText()).second) fail("two animations have one name");
    const float length = read<float>();
    if (!(length > 0) || !std::isfinite(length)) fail("an animation's length is above 0 seconds");
    Part part{};
    if (takePart(BASE_INFO, part)) {
      readText();
      readFloats(1);
    }
    std::set<std::uint16_t> tracks;
    while (takePart(TRACK, part)) {
      if (!tracks.insert(readBoneNumber()).second) fail("an animation has two tracks of one bone");
      while (takePart(KEY_FRAME, part)) {
        readFloats(1);
        readRotation();
        readFloats(part.length > KEY_FRAME_SIZE ? 6 : 3);
      }
    }
  }

  const std::string& mBytes;
  std::size_t mPosition = 0;
  std::set<std::string> mBoneNames, mAnimationNames;
  std::set<std::uint16_t> mBones;
  std::map<std::uint16_t, std::uint16_t> mParents;
};

}

void checkSkeletonBytes(const std::string& bytes) { Check(bytes).run(); }

}
