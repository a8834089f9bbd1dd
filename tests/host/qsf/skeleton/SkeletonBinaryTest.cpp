// Skeletons in OGRE's binary form, which OGRE itself writes here.
#include "qsf/skeleton/SkeletonFile.h"

#include "host/qsf/TestWorld.h"
#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/skeleton/SkeletonFileCheck.h"
#include "qsf/skeleton/SkeletonPose.h"

#include <OgreAnimation.h>
#include <OgreAnimationTrack.h>
#include <OgreBone.h>
#include <OgreKeyFrame.h>
#include <OgreLogManager.h>
#include <OgreSkeleton.h>
#include <OgreSkeletonSerializer.h>

namespace {

/// OGRE's serializer, as the readers too, logs.
struct OgreLog {
  OgreLog() { manager.createLog("", true, false, true); }
  Ogre::LogManager manager;
};

class Skeleton : public Ogre::Skeleton {
public:
  Skeleton() : Ogre::Skeleton(nullptr, "test", 0, "", true) {}
  ~Skeleton() override { unloadImpl(); }
};

/// The bytes of a skeleton with three bones, one of them scaled, and an animation.
std::string skeletonBytes(const std::string& file) {
  const OgreLog log;
  Skeleton skeleton;
  Ogre::Bone& mast = *skeleton.createBone("Mast", 0);
  Ogre::Bone& jib = *skeleton.createBone("Jib", 1);
  Ogre::Bone& hook = *skeleton.createBone("Hook", 2);
  mast.addChild(&jib);
  jib.addChild(&hook);
  jib.setPosition(0, 5, 0);
  hook.setScale(2, 2, 2);
  skeleton.setBindingPose();
  Ogre::NodeAnimationTrack& track = *skeleton.createAnimation("lift", 4)->createNodeTrack(2, &hook);
  track.createNodeKeyFrame(0);
  track.createNodeKeyFrame(4)->setTranslate(Ogre::Vector3(0, 8, 0));
  track.getNodeKeyFrame(1)->setScale(Ogre::Vector3(3, 1, 1));
  Ogre::SkeletonSerializer().exportSkeleton(&skeleton, file);
  std::ifstream input(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

class SkeletonBinaryTest : public host_test::WorldTest {
protected:
  SkeletonBinaryTest() {
    std::filesystem::create_directories(project.path() + "/skeleton/test");
    bytes = skeletonBytes(project.path() + "/skeleton/test/crane.skeleton");
  }
  /// Reads the bytes and shows their animation. False if they are refused; anything else than that and a skeleton that
  /// can be used ends the process.
  bool survive(const std::string& changed) {
    const OgreLog log;
    const std::string file = project.path() + "/changed.skeleton";
    project.write("changed.skeleton", changed);
    const auto skeleton = std::make_shared<Skeleton>();
    try {
      qsf::readSkeletonFile(file, *skeleton);
    } catch (const qsf::LoadError& fault) {
      EXPECT_EQ(std::string(fault.what()).find(file), 0u);
      return false;
    }
    qsf::SkeletonPose(skeleton).show("lift", 0.5f);
    return true;
  }

  std::string bytes;
};

TEST_F(SkeletonBinaryTest, WhatOgreHasWrittenIsRead) {
  project.write("animation/test/lift.json", R"({"length": 2})");
  mountProject();
  map.startup();
  auto& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
  component.setPropertyByString("Skeleton", "test/skeleton/test/crane");
  EXPECT_EQ(component.getBoneState("Jib")->position, glm::vec3(0, 5, 0));
  EXPECT_EQ(component.getBoneState("Hook")->scale, glm::vec3(2, 2, 2));
  component.playAnimation(qsf::AssetProxy(std::string("test/animation/test/lift")), true);
  runSeconds(1);
  EXPECT_NEAR(component.getBoneState("Hook")->position.y, 4, 1e-3);
  EXPECT_NEAR(component.getBoneState("Hook")->scale.x, 4, 1e-3);
  EXPECT_TRUE(log.empty()) << log.front();
}

TEST_F(SkeletonBinaryTest, AFileThatEndsTooEarlyIsRefused) {
  EXPECT_TRUE(survive(bytes));
  std::size_t refused = 0;
  for (std::size_t size = 0; size < bytes.size(); ++size)
    refused += !survive(bytes.substr(0, size));
  EXPECT_GT(refused, bytes.size() - 20) << "a file may end between two of its parts";
}

TEST_F(SkeletonBinaryTest, NoChangedByteEndsTheProcess) {
  std::size_t refused = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    for (const char value : {'\0', '\x01', '\x05', '\x7F', '\xFF'}) {
      std::string changed = bytes;
      changed[i] = value;
      refused += !survive(changed);
    }
  }
  EXPECT_GT(refused, bytes.size());
}

TEST_F(SkeletonBinaryTest, OtherFilesAreRefused) {
  for (const char* text : {"", "x", "a text that is no skeleton", "\x10\x00[Serializer_v1.80]\n"})
    EXPECT_FALSE(survive(text)) << text;
  EXPECT_FALSE(survive(bytes + "more"));
}

TEST_F(SkeletonBinaryTest, AFaultyFileCostsOneLine) {
  project.write("skeleton/test/faulty.skeleton", bytes.substr(0, bytes.size() - 1));
  mountProject();
  auto& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
  component.setPropertyByString("Skeleton", "test/skeleton/test/faulty");
  EXPECT_EQ(component.manualBoneControl("Mast", true), nullptr);
  EXPECT_EQ(component.manualBoneControl("Mast", true), nullptr);
  ASSERT_EQ(log.size(), 1u);
  EXPECT_NE(log[0].find("faulty.skeleton: byte "), std::string::npos) << log[0];
  EXPECT_NE(log[0].find("the file ends too early"), std::string::npos) << log[0];
}

std::string swapped(std::string bytes, const std::string& what, const std::string& by) {
  const std::size_t found = bytes.find(what);
  EXPECT_NE(found, std::string::npos);
  return bytes.replace(found, what.size(), by);
}

TEST_F(SkeletonBinaryTest, AZeroByteInANameIsRefused) {
  using namespace std::string_literals;
  EXPECT_FALSE(survive(swapped(bytes, "Hook", "Ho\0k"s)));
}

TEST_F(SkeletonBinaryTest, BonesOutOfPlaceAreRefused) {
  using namespace std::string_literals;
  const auto fault = [](const std::string& changed) {
    try {
      qsf::checkSkeletonBytes(changed);
      return "none"s;
    } catch (const std::runtime_error& wrong) {
      const std::string text = wrong.what();
      return text.substr(text.find(": ") + 2);
    }
  };
  const std::string parent = "\0\x30\x0A\0\0\0"s; // of bone 1 is 0, of bone 2 is 1
  EXPECT_EQ(fault(bytes), "none");
  EXPECT_EQ(fault(swapped(bytes, parent + "\1\0\0\0"s, parent + "\1\0\2\0"s)), "a bone is its own ancestor");
  EXPECT_EQ(fault(swapped(bytes, parent + "\1\0\0\0"s, parent + "\2\0\0\0"s)), "a bone has two parents");
  EXPECT_EQ(fault(swapped(bytes, parent + "\1\0\0\0"s, parent + "\1\0\7\0"s)), "there is no bone 7");
  EXPECT_EQ(fault(swapped(bytes, "Jib\n\1"s, "Jib\n\3"s)), "there is no bone 1");
  EXPECT_EQ(fault(swapped(bytes, "Jib\n\1\0"s, "Jib\n\1\2"s)), "the number of a bone is too high");
  EXPECT_EQ(fault(swapped(bytes, "Jib\n\1"s, "Jib\n\0"s)), "two bones have one number");
  EXPECT_EQ(fault(swapped(bytes, "Hook\n"s, "Mast\n"s)), "two bones have one name");
}

}
