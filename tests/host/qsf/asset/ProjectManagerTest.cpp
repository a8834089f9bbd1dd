#include "host/qsf/TestWorld.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/prototype/PrototypeManager.h"

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

/// A base directory with projects below its folder `data`.
class BesideTest : public ProjectManagerTest {
protected:
  BesideTest() { project.write("data/extra/project.json", R"({"name": "extra"})"); }
  qsf::Project* add(const std::string& name) {
    return projects.registerSingleProjectFromFileSystem(name, "data/" + name, project.path());
  }
  static bool exists(const std::string& asset) { return qsf::AssetProxy(asset).getAsset() != nullptr; }
};

TEST_F(BesideTest, AProjectIsRegisteredFirstAndMountedThen) {
  project.write("data/extra/prefab/test/box.json", "{}");
  qsf::Project* extra = add("extra");
  ASSERT_NE(nullptr, extra);
  EXPECT_EQ(project.path(), extra->getBaseDirectory());
  EXPECT_FALSE(exists("extra/prefab/test/box"));
  ASSERT_EQ(1u, extra->getAssetPackageList().size());
  extra->getAssetPackageList()[0]->mount();
  EXPECT_TRUE(exists("extra/prefab/test/box"));
  EXPECT_EQ(extra, add("extra")) << "a known folder gives its project";
  EXPECT_TRUE(log.empty());
}

TEST_F(BesideTest, WhatIsNoProjectBelowTheFolderIsRefused) {
  project.write("data/empty/readme.txt", "");
  project.write("data/broken/project.json", "{");
  project.write("data/other/project.json", R"({"name": "extra"})");
  project.write("outside/project.json", R"({"name": "outside"})");
  for (const std::string name : {"none", "empty", "../outside", "extra/../extra", ""})
    EXPECT_EQ(nullptr, add(name)) << name;
  EXPECT_EQ(nullptr, projects.registerSingleProjectFromFileSystem("outside", project.path() + "/outside", "/"));
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(nullptr, add("broken"));
  ASSERT_EQ(1u, log.size());
  expectContains(log[0], "broken/project.json");
  EXPECT_NE(nullptr, add("extra"));
  EXPECT_EQ(nullptr, add("other"));
  ASSERT_EQ(2u, log.size());
  expectContains(log[1], "is mounted already");
}

TEST_F(BesideTest, AnUnmountedAssetIsGoneUntilItsPackageIsMountedAnew) {
  project.write("data/extra/prefab/test/a.json", "{}");
  project.write("data/extra/prefab/test/b.json", "{}");
  qsf::AssetPackage& package = add("extra")->getAssetPackage();
  package.mount();
  const qsf::AssetProxy a(std::string("extra/prefab/test/a"));
  EXPECT_EQ(&package, a.getAssetPackage());
  const std::uint64_t id = a.getGlobalAssetId();
  EXPECT_NE(nullptr, qsf::AssetProxy(id).getAsset());
  package.unmountAssetByGlobalAssetId(id);
  package.unmountAssetByGlobalAssetId(id);
  package.unmountAssetByGlobalAssetId(7);
  EXPECT_EQ(nullptr, qsf::AssetProxy(id).getAsset());
  EXPECT_EQ(nullptr, a.getAssetPackage());
  EXPECT_EQ(std::vector<std::string>{"extra/prefab/test/b"}, projects.getAssetNamesByType("prefab"));
  EXPECT_EQ(1u, package.getAssets().size());
  package.mount();
  EXPECT_EQ(2u, package.getAssets().size());
  EXPECT_NE(nullptr, qsf::AssetProxy(id).getAsset());
}

TEST_F(BesideTest, IdsBeyondAllAssetsNameNone) {
  project.write("data/extra/prefab/test/a.json", "{}");
  add("extra")->getAssetPackage().mount();
  const std::uint64_t id = qsf::StringHash::compute("extra/prefab/test/a");
  EXPECT_NE(nullptr, qsf::AssetProxy(id).getAsset());
  EXPECT_EQ(nullptr, qsf::AssetProxy(id + (std::uint64_t{1} << 32)).getAsset());
  EXPECT_EQ(nullptr, qsf::AssetProxy(std::uint64_t{0xFFFFFFFF}).getAsset());
  EXPECT_EQ(nullptr, qsf::AssetProxy(~std::uint64_t{0}).getAsset());
}

TEST_F(BesideTest, AnUnmountedPrefabMakesNothing) {
  project.write("data/extra/prefab/test/box.json", R"({"components": {"qsf::TransformComponent": {}}})");
  qsf::AssetPackage& package = add("extra")->getAssetPackage();
  package.mount();
  EXPECT_NE(nullptr, map.createObjectByLocalPrefabAssetId("extra/prefab/test/box"));
  package.unmountAssetByGlobalAssetId(qsf::StringHash::compute("extra/prefab/test/box"));
  EXPECT_EQ(nullptr, map.createObjectByLocalPrefabAssetId("extra/prefab/test/box"));
  package.mount();
  EXPECT_NE(nullptr, map.createObjectByLocalPrefabAssetId("extra/prefab/test/box"));
}

TEST_F(BesideTest, TextsComeAndGoWithTheirProject) {
  project.write("data/extra/text/en/a.json", R"({"ID": "text"})");
  project.write("data/extra/text/de/b.json", "nonsense");
  const qsf::LocalizationSystem& texts = host.getLocalizationSystem();
  qsf::AssetPackage& package = add("extra")->getAssetPackage();
  host.getLocalizationSystem().reload();
  EXPECT_EQ("ID", texts.translate("ID"));
  package.mount();
  EXPECT_EQ("text", texts.translate("ID"));
  package.unmountAssetByGlobalAssetId(qsf::StringHash::compute("extra/text/en/a"));
  EXPECT_EQ("ID", texts.translate("ID"));
  package.mount();
  EXPECT_EQ("text", texts.translate("ID"));
  EXPECT_TRUE(log.empty());
  project.write("data/extra/text/en/c.json", "nonsense");
  package.mount();
  ASSERT_EQ(1u, log.size());
  expectContains(log[0], "c.json");
  EXPECT_EQ("text", texts.translate("ID")) << "what was known stays";
}

}
