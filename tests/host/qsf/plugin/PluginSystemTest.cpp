#include "qsf/plugin/PluginSystem.h"
#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/base/LoadError.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/Object.h"
#include "tests/support/Paths.h"

#include <camp/classbuilder.hpp>
#include <gtest/gtest.h>

namespace pluginTest {

class Declared : public qsf::Object {
  CAMP_RTTI()
};

}
CAMP_TYPE_NONCOPYABLE(pluginTest::Declared)

namespace {

using qsf::LoadError;
using qsf::Plugin;

/// A plug-in of the program itself.
class LocalPlugin : public Plugin {
public:
  LocalPlugin(std::string name, std::string& calls) : Plugin(nullptr), mName(std::move(name)), mCalls(calls) {}
  ~LocalPlugin() override { mCalls += mName + ".destroyed "; }
  const char* getName() const override { return mName.c_str(); }
  const char* getVendor() const override { return "tests"; }
  const char* getDescription() const override { return ""; }

protected:
  bool onInstall() override {
    // CAMP keeps the class from one test to the next.
    static const bool isDeclared = (camp::Class::declare<pluginTest::Declared>("pluginTest::Declared"), true);
    EXPECT_TRUE(isDeclared);
    addCampClass(camp::classByType<pluginTest::Declared>());
    mCalls += mName + ".install ";
    return true;
  }
  bool onStartup() override {
    mCalls += mName + ".startup ";
    return true;
  }
  void onShutdown() override { mCalls += mName + ".shutdown "; }
  void onUninstall() override { mCalls += mName + ".uninstall "; }

private:
  std::string mName;
  std::string& mCalls;
};

class PluginSystemTest : public testing::Test {
protected:
  PluginSystemTest() {
    host.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      lines.push_back(std::to_string(record.severity) + " " + std::string(record.message));
    });
    host.getPluginSystem().setKeepLibraries(true);
  }
  std::string getCalls() const {
    std::string calls;
    for (const auto& call : host.getCallRecorder().getCalls())
      calls += call.operation + " ";
    return calls;
  }
  /// The text of the LoadError; empty if there was none.
  std::string loadFailing(const std::string& path, const std::string& factory) {
    try {
      host.getPluginSystem().loadPlugin(path, factory);
    } catch (const LoadError& error) {
      return error.what();
    }
    return "";
  }

  qsf::Qsf host;
  std::vector<std::string> lines;
};

TEST_F(PluginSystemTest, LoadsInstallsAndStartsALibrarysPlugin) {
  Plugin* plugin = host.getPluginSystem().loadPlugin(paths::testPlugin());
  ASSERT_NE(plugin, nullptr);
  EXPECT_STREQ(plugin->getName(), "test plug-in");
  EXPECT_EQ(host.getPluginSystem().getPlugins(), (std::vector<Plugin*>{plugin}));
  EXPECT_EQ(getCalls(), "onInstall onStartup ");
  host.getPluginSystem().unloadPlugins();
  EXPECT_EQ(getCalls(), "onInstall onStartup onShutdown onUninstall destroyed ");
  EXPECT_TRUE(host.getPluginSystem().getPlugins().empty());
}

TEST(PluginSystem, TheFactoryIsNamedAfterTheLibrary) {
  using qsf::PluginSystem;
  EXPECT_EQ(PluginSystem::getFactoryName("/a.b/libbirds.so"), "CreatePluginInstance_birds_new");
  EXPECT_EQ(PluginSystem::getFactoryName("birds.so.1.2"), "CreatePluginInstance_birds_new");
  EXPECT_EQ(PluginSystem::getFactoryName("birds"), "CreatePluginInstance_birds_new");
}

TEST_F(PluginSystemTest, ALibraryIsLoadedOnlyOnceAtATimeButAgainAfterItsEnd) {
  ASSERT_NE(host.getPluginSystem().loadPlugin(paths::testPlugin()), nullptr);
  EXPECT_NE(loadFailing(paths::testPlugin(), "CreatePluginInstance_test_plugin_new").find("loaded already"),
            std::string::npos);
  EXPECT_EQ(host.getPluginSystem().getPlugins().size(), 1u);
  host.getPluginSystem().unloadPlugins();
  EXPECT_NE(host.getPluginSystem().loadPlugin(paths::testPlugin()), nullptr);
}

TEST_F(PluginSystemTest, ALibraryThatIsNotKeptMayBeLoadedAgain) {
  host.getPluginSystem().setKeepLibraries(false);
  for (int i = 0; i < 3; ++i) {
    ASSERT_NE(host.getPluginSystem().loadPlugin(paths::testPlugin()), nullptr);
    host.getPluginSystem().unloadPlugins();
  }
}

TEST_F(PluginSystemTest, WhatCannotBeLoadedSaysWhy) {
  EXPECT_NE(loadFailing("/no/such/library.so", "x").find("/no/such/library.so: there is no such plug-in library"),
            std::string::npos);
  EXPECT_NE(loadFailing(paths::sourceDirectory(), "x").find("no such plug-in library"), std::string::npos);
  EXPECT_NE(loadFailing(paths::sourceDirectory() + "/CMakeLists.txt", "x").find("cannot be loaded"), std::string::npos);
  const std::string noFactory = loadFailing(paths::testPlugin(), "CreateSomethingElse");
  EXPECT_NE(noFactory.find("CreateSomethingElse"), std::string::npos);
  EXPECT_NE(noFactory.find("exports no such function"), std::string::npos);
  EXPECT_NE(loadFailing(paths::testPlugin(), "createNothing").find("made no plug-in"), std::string::npos);
  EXPECT_NE(loadFailing(paths::testPlugin(), "createWithFault").find("made no plug-in"), std::string::npos);
  EXPECT_EQ(host.getFaultCounter().getCount(), 1u);
  EXPECT_TRUE(host.getPluginSystem().getPlugins().empty());
}

TEST_F(PluginSystemTest, APluginThatRefusesItsInstallationIsNotStarted) {
  EXPECT_EQ(host.getPluginSystem().loadPlugin(paths::testPlugin(), "createRefusingInstall"), nullptr);
  EXPECT_EQ(getCalls(), "onInstall destroyed ");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "4 The plug-in 'test plug-in' could not be installed");
}

TEST_F(PluginSystemTest, AnExceptionInTheInstallationIsARefusal) {
  EXPECT_EQ(host.getPluginSystem().loadPlugin(paths::testPlugin(), "createThrowingInstall"), nullptr);
  EXPECT_EQ(getCalls(), "onInstall destroyed ");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "4 Fault in the installation of plug-in 'test plug-in': refused");
  EXPECT_TRUE(host.getPluginSystem().getPlugins().empty());
}

TEST_F(PluginSystemTest, APluginThatRefusesToStartIsUninstalled) {
  EXPECT_EQ(host.getPluginSystem().loadPlugin(paths::testPlugin(), "createRefusingStartup"), nullptr);
  EXPECT_EQ(getCalls(), "onInstall onStartup onUninstall destroyed ");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "4 The plug-in 'test plug-in' could not be started");
}

TEST(PluginSystem, EndsPluginsInReverseOrderAndForgetsTheirClasses) {
  std::string calls;
  {
    qsf::Qsf host;
    auto& system = host.getPluginSystem();
    ASSERT_NE(system.addPlugin(std::make_unique<LocalPlugin>("a", calls)), nullptr);
    Plugin* second = system.addPlugin(std::make_unique<LocalPlugin>("b", calls));
    ASSERT_NE(second, nullptr);
    ASSERT_EQ(second->getCampClasses().size(), 1u);
    EXPECT_EQ(second->getCampClasses()[0]->name(), "pluginTest::Declared");
    EXPECT_EQ(qsf::findComponentClass("pluginTest::Declared"), second->getCampClasses()[0]);
    calls.clear();
  }
  EXPECT_EQ(calls, "b.shutdown b.uninstall b.destroyed a.shutdown a.uninstall a.destroyed ");
  EXPECT_EQ(qsf::findComponentClass("pluginTest::Declared"), nullptr);
}

}
