#include "host/qsf/TestWorld.h"

using host_test::TestProject;

namespace {

class ProjectManagerTest : public host_test::WorldTest {
protected:
  std::string mountFault(const std::string& path) {
    try {
      projects.registerSingleProjectFromFileSystem(path);
      return {};
    } catch (const qsf::LoadError& fault) {
      return fault.what();
    }
  }
  std::string mountFaultOf(const std::string& json) {
    const TestProject faulty(json);
    return mountFault(faulty.path());
  }
  qsf::ProjectManager& projects = host.getProjectManager();
};

void expectContains(const std::string& text, const std::string& part) {
  EXPECT_NE(std::string::npos, text.find(part)) << text << "\nlacks\n" << part;
}

TEST_F(ProjectManagerTest, AssetsAreNamedByProjectAndPathWithoutEnding) {
  project.write("prefab/test/tree.json", "{}");
  project.write("mesh/cars/big/red.one.mesh", "");
  project.write("prefab/shallow.json", "{}");
  project.write(".git/objects/ab/cd.json", "{}");
  mountProject();
  EXPECT_EQ("test/prefab/test/tree", qsf::AssetProxy(std::string("test/prefab/test/tree")).getLocalAssetName());
  EXPECT_EQ(project.path() + "/prefab/test/tree.json",
            qsf::AssetProxy(std::string("test/prefab/test/tree")).getAsset()->getFile());
  EXPECT_NE(nullptr, qsf::AssetProxy(std::string("test/mesh/cars/big/red.one")).getAsset());
  EXPECT_EQ(2u, projects.getProjects().front()->getAssets().size());
  EXPECT_EQ("prefab", qsf::AssetProxy(std::string("test/prefab/test/tree")).getAsset()->getType());
}

TEST_F(ProjectManagerTest, TheGlobalAssetIdIsTheHashOfTheName) {
  project.write("map/test/one.json", "{}");
  mountProject();
  EXPECT_EQ(qsf::StringHash::compute("test/map/test/one"),
            qsf::AssetProxy(std::string("test/map/test/one")).getGlobalAssetId());
  EXPECT_EQ(qsf::UNINITIALIZED_STRING_HASH, qsf::AssetProxy(std::string("test/map/test/two")).getGlobalAssetId());
  EXPECT_EQ("", qsf::AssetProxy(std::string("test/map/test/two")).getLocalAssetName());
  EXPECT_EQ(nullptr, qsf::AssetProxy().getAsset());
}

TEST_F(ProjectManagerTest, TheJsonFileStandsForANameWithSeveralFiles) {
  project.write("prefab/test/tree.aaa", "");
  project.write("prefab/test/tree.json", "{}");
  mountProject();
  EXPECT_TRUE(qsf::AssetProxy(std::string("test/prefab/test/tree")).getAsset()->getFile().ends_with(".json"));
}

TEST_F(ProjectManagerTest, FaultsOfTheProjectFileNameFileAndPlace) {
  expectContains(mountFault("/nowhere/at/all"), "/nowhere/at/all");
  expectContains(mountFaultOf(R"({"description": "x"})"), "\"name\" is missing");
  expectContains(mountFaultOf(R"({"name": 5})"), "/name");
  expectContains(mountFaultOf(R"({"name": ""})"), "/name");
  expectContains(mountFaultOf(R"({"name": "a/b"})"), "/name");
  expectContains(mountFaultOf("[]"), "an object is expected");
  expectContains(mountFaultOf(R"({"name": "a", "description": []})"), "/description");
  expectContains(mountFaultOf("{\n \"name\": }"), "line 2");
  expectContains(mountFaultOf(R"({"name": "a", "name": "b"})"), "two members named \"name\"");
  expectContains(mountFaultOf(""), "project.json");
  expectContains(mountFaultOf(std::string("\xFF\x00{", 3)), "malformed JSON");
  EXPECT_TRUE(projects.getProjects().empty());
}

TEST_F(ProjectManagerTest, AFolderWithoutProjectFileAndAFileAreNoProjects) {
  project.write("sub/x.txt", "");
  expectContains(mountFault(project.path() + "/sub"), "project.json");
  expectContains(mountFault(project.path() + "/sub/x.txt"), "is a folder");
  EXPECT_TRUE(projects.getProjects().empty());
}

TEST_F(ProjectManagerTest, ASecondProjectOfTheSameNameIsRefused) {
  mountProject();
  expectContains(mountFaultOf(R"({"name": "test"})"), "is mounted already");
  EXPECT_EQ(1u, projects.getProjects().size());
}

TEST_F(ProjectManagerTest, ProjectsKeepTheOrderOfMounting) {
  const TestProject other(R"({"name": "a"})");
  mountProject();
  projects.registerSingleProjectFromFileSystem(other.path());
  EXPECT_EQ("test", projects.getProjects()[0]->getName());
  EXPECT_EQ("a", projects.getProjects()[1]->getName());
  EXPECT_EQ(nullptr, projects.getProjectByName("b"));
}

TEST_F(ProjectManagerTest, DeeplyNestedJsonIsReadWithoutACrash) {
  const std::string deep = std::string(1000000, '[');
  expectContains(mountFaultOf(deep), "malformed JSON");
  EXPECT_NE("", mountFaultOf(deep + std::string(1000000, ']')));
}

}
