// Bones as the component shows them, from skeletons described in JSON.
#include "host/qsf/TestWorld.h"
#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/reflection/PropertyText.h"

#include <cmath>

namespace {

constexpr const char* CRANE = R"({
  "description": "a mast with a jib and a hook",
  "bones": [
    {"name": "Mast", "position": [1, 2, 3], "rotation": [90, 0, 0], "scale": [2, 1, 1]},
    {"name": "Jib", "parent": "Mast", "position": [0, 5, 0]},
    {"name": "Hook", "parent": "Jib"}
  ],
  "animations": [
    {"name": "lift", "length": 4, "bones": {
      "Mast": [{"time": 0}, {"time": 4, "rotation": [0, 0, 0], "scale": [4, 1, 0]}],
      "Hook": [{"time": 0}, {"time": 4, "position": [0, 8, 0]}]}},
    {"name": "test/animation/test/whole", "length": 1, "bones": {"Jib": [{"time": 0, "position": [9, 9, 9]}]}}
  ]
})";

class BonesTest : public host_test::WorldTest {
protected:
  BonesTest() {
    project.write("skeleton/test/crane.json", CRANE);
    project.write("skeleton/test/pole.json", R"({"bones": [{"name": "Jib"}]})");
    project.write("animation/test/lift.json", R"({"length": 2})");
    project.write("animation/test/whole.json", R"({"length": 2})");
    project.write("animation/test/strange.json", R"({"length": 2})");
    mountProject();
    map.startup();
    component.setPropertyByString("Skeleton", "test/skeleton/test/crane");
  }
  qsf::BoneState bone(const std::string& name) { return component.getBoneState(name).value(); }
  void play(const std::string& name) { component.playAnimation(qsf::AssetProxy("test/animation/test/" + name), true); }

  qsf::MeshAnimationComponent& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
};

void expectNear(const glm::vec3& expected, const glm::vec3& found) {
  EXPECT_LT(glm::distance(expected, found), 1e-3f) << qsf::toText(found);
}

TEST_F(BonesTest, TheRestPoseIsThatOfTheFile) {
  const float half = std::sqrt(0.5f);
  expectNear({1, 2, 3}, bone("Mast").position);
  EXPECT_NEAR(bone("Mast").rotation.w, half, 1e-5);
  EXPECT_NEAR(bone("Mast").rotation.y, half, 1e-5) << "the heading comes first";
  expectNear({2, 1, 1}, bone("Mast").scale);
  expectNear({0, 5, 0}, bone("Jib").position);
  EXPECT_FALSE(bone("Mast").manual);
  EXPECT_EQ(bone("Mast").turnedBy, 0);
  EXPECT_FALSE(component.getBoneState("Wheel").has_value());
}

TEST_F(BonesTest, AnAnimationMovesBonesByItsShareOfTheLength) {
  play("lift"); // the asset lasts half as long as the skeleton's animation
  runSeconds(1);
  expectNear({0, 4, 0}, bone("Hook").position);
  EXPECT_NEAR(bone("Mast").turnedBy, 45, 0.01);
  expectNear({3, 1, 0.5f}, bone("Mast").scale);
  expectNear({0, 5, 0}, bone("Jib").position);
}

TEST_F(BonesTest, TheBonesRestWhenNothingPlays) {
  play("lift");
  runSeconds(1);
  component.clearAnimation();
  runSeconds(0.05);
  expectNear({0, 0, 0}, bone("Hook").position);
  EXPECT_NEAR(bone("Mast").turnedBy, 0, 1e-3);
}

TEST_F(BonesTest, BonesThatAreAskedForLateAreWhereTheAnimationIs) {
  play("lift");
  runSeconds(1);
  EXPECT_NEAR(bone("Mast").turnedBy, 45, 0.01) << "nobody has asked before";
}

TEST_F(BonesTest, AWholeNameGoesBeforeALastPartAndAStrangeOneMovesNothing) {
  play("whole");
  runSeconds(0.1);
  expectNear({9, 9, 9}, bone("Jib").position);
  play("strange");
  runSeconds(0.1);
  expectNear({0, 5, 0}, bone("Jib").position);
}

TEST_F(BonesTest, ManualControlHoldsAgainstTheAnimation) {
  play("lift");
  runSeconds(0.5);
  bool before = true;
  ASSERT_NE(component.manualBoneControl("Hook", true, &before), nullptr);
  EXPECT_FALSE(before);
  runSeconds(0.5);
  EXPECT_TRUE(bone("Hook").manual);
  expectNear({0, 2, 0}, bone("Hook").position);
  EXPECT_NEAR(bone("Mast").turnedBy, 45, 0.01) << "others go on";
  component.manualBoneControl("Hook", false, &before);
  EXPECT_TRUE(before);
  expectNear({0, 2, 0}, bone("Hook").position);
  runSeconds(0.05);
  expectNear({0, 4.2f, 0}, bone("Hook").position);
}

TEST_F(BonesTest, ControlWithoutTheBoneGivesNull) {
  EXPECT_EQ(component.manualBoneControl("Wheel", true), nullptr);
  auto& bare = *makeEntity(101).getOrCreateComponent<qsf::MeshAnimationComponent>();
  EXPECT_EQ(bare.manualBoneControl("Mast", true), nullptr);
  EXPECT_FALSE(bare.getBoneState("Mast").has_value());
  EXPECT_TRUE(log.empty()) << log.front();
}

TEST_F(BonesTest, EntitiesHaveBonesOfTheirOwn) {
  auto& other = *makeEntity(101).getOrCreateComponent<qsf::MeshAnimationComponent>();
  other.setSkeleton(component.getSkeleton());
  component.manualBoneControl("Jib", true);
  EXPECT_TRUE(bone("Jib").manual);
  EXPECT_FALSE(other.getBoneState("Jib")->manual);
}

TEST_F(BonesTest, AnotherSkeletonTakesThePlace) {
  component.manualBoneControl("Jib", true);
  component.setPropertyByString("Skeleton", "test/skeleton/test/pole");
  EXPECT_FALSE(bone("Jib").manual);
  expectNear({0, 0, 0}, bone("Jib").position);
  EXPECT_FALSE(component.getBoneState("Mast").has_value());
}

TEST_F(BonesTest, AMissingSkeletonIsToldOnce) {
  component.setPropertyByString("Skeleton", "test/skeleton/test/none");
  EXPECT_EQ(component.manualBoneControl("Mast", true), nullptr);
  EXPECT_EQ(component.manualBoneControl("Mast", true), nullptr);
  EXPECT_EQ(log, std::vector<std::string>{"No mounted project has a skeleton \"test/skeleton/test/none\""});
}

TEST_F(BonesTest, OgreLeavesNoFileBehind) {
  EXPECT_TRUE(component.getBoneState("Mast").has_value());
  for (const char* file : {"ogre.log", "Ogre.log", "plugins.cfg", "ogre.cfg"})
    EXPECT_FALSE(std::filesystem::exists(file)) << file;
}

struct Fault {
  const char* text;
  const char* told;
};

class SkeletonFaultTest : public host_test::WorldTest, public testing::WithParamInterface<Fault> {};

TEST_P(SkeletonFaultTest, IsToldWithItsPlaceAndLeavesNoBones) {
  project.write("skeleton/test/faulty.json", GetParam().text);
  mountProject();
  auto& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
  component.setPropertyByString("Skeleton", "test/skeleton/test/faulty");
  EXPECT_EQ(component.manualBoneControl("A", true), nullptr);
  ASSERT_EQ(log.size(), 1u);
  EXPECT_NE(log[0].find("faulty.json"), std::string::npos) << log[0];
  EXPECT_NE(log[0].find(GetParam().told), std::string::npos) << log[0];
}

INSTANTIATE_TEST_SUITE_P(
    Json, SkeletonFaultTest,
    testing::Values(
        Fault{"{", "line 1"}, Fault{"{}", "bones"}, Fault{R"({"bones": []})", "a skeleton has a bone"},
        Fault{R"({"bones": [{}]})", "name"},
        Fault{R"({"bones": [{"name": "A"}, {"name": "A"}]})", "there is a bone \"A\" already"},
        Fault{R"({"bones": [{"name": "A", "parent": "A"}]})", "there is no bone \"A\" above this one"},
        Fault{R"({"bones": [{"name": "A", "parent": "B"}, {"name": "B"}]})", "there is no bone \"B\" above"},
        Fault{R"({"bones": [{"name": "A", "position": [0, 1]}]})", "position"},
        Fault{R"({"bones": [{"name": "A", "position": [0, 1, 1e30]}]})", "too large"},
        Fault{R"({"bones": [{"name": "A", "place": [0, 1, 1]}]})", "place"},
        Fault{R"({"bones": [{"name": "A"}], "animations": [{"name": "x", "length": 0, "bones": {}}]})", "above 0"},
        Fault{R"({"bones": [{"name": "A"}], "animations": [{"name": "x", "length": 1, "bones": {"B": []}}]})",
              "there is no bone \"B\""},
        Fault{
            R"({"bones": [{"name": "A"}], "animations": [{"name": "x", "length": 1, "bones": {"A": [{"time": 2}]}}]})",
            "not within the animation"},
        Fault{R"({"bones": [{"name": "A"}], "animations": [{"name": "x", "length": 1, "bones": {}},
                 {"name": "x", "length": 1, "bones": {}}]})",
              "there is an animation \"x\" already"}));

TEST_F(SkeletonFaultTest, ASkeletonHas256BonesAtMost) {
  std::string bones;
  for (int i = 0; i < 256; ++i)
    bones += "{\"name\": \"" + std::to_string(i) + "\"},";
  project.write("skeleton/test/full.json", "{\"bones\": [" + bones.substr(0, bones.size() - 1) + "]}");
  project.write("skeleton/test/over.json", "{\"bones\": [" + bones + "{\"name\": \"x\"}]}");
  mountProject();
  auto& component = *makeEntity(100).getOrCreateComponent<qsf::MeshAnimationComponent>();
  component.setPropertyByString("Skeleton", "test/skeleton/test/full");
  EXPECT_NE(component.manualBoneControl("255", true), nullptr);
  component.setPropertyByString("Skeleton", "test/skeleton/test/over");
  EXPECT_EQ(component.manualBoneControl("255", true), nullptr);
  ASSERT_EQ(log.size(), 1u);
  EXPECT_NE(log[0].find("a skeleton has 256 bones at most"), std::string::npos);
}

}
