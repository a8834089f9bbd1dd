#include "game_plugin/plugin/Plugin.h"

#include "em5/game/Game.h"
#include "game_plugin/ModuleFixture.h"
#include "qsf/log/FaultCounter.h"

#include <stdexcept>

extern "C" qsf::Plugin* CreatePluginInstance_tidemark_new();

using namespace script;

namespace {

using PluginTest = ModuleTest;

TEST_F(PluginTest, TellsWhoItIs) {
  const std::unique_ptr<qsf::Plugin> plugin(CreatePluginInstance_tidemark_new());
  ASSERT_NE(plugin, nullptr);
  EXPECT_EQ(Plugin::get(), plugin.get());
  EXPECT_STREQ(plugin->getName(), "map change Plugin");
  EXPECT_STREQ(plugin->getVendor(), "BrillTarn");
  EXPECT_STREQ(plugin->getDescription(),
               "plugin offers all needed classes and methodes, which are necessary for a Tidemark");
}

TEST_F(PluginTest, TheManagerLivesFromStartupToShutdown) {
  EXPECT_EQ(MapScriptManager::get(), nullptr);
  load();
  EXPECT_NE(MapScriptManager::get(), nullptr);
  session.reset();
  EXPECT_EQ(MapScriptManager::get(), nullptr);
  EXPECT_EQ(count(2, "Start Shutdown of Tidemark Plugin"), 1);
  EXPECT_EQ(count(2, "Tidemark Plugin was shutdown succesfully"), 1);
}

TEST_F(PluginTest, AnInstallationThatFailsTellsWhyAndStartsNothing) {
  open();
  auto plugin = std::make_unique<Plugin>(
      +[]() -> std::vector<const camp::Class*> { throw std::runtime_error("a class is there twice"); });
  EXPECT_EQ(session->getQsf().getPluginSystem().addPlugin(std::move(plugin)), nullptr);
  EXPECT_TRUE(logged(4, "Failed to install the plugin 'map change Plugin'. Exception caught: a class is there twice"));
  EXPECT_EQ(MapScriptManager::get(), nullptr);
}

TEST_F(PluginTest, StartsAnewInTheNextSession) {
  load();
  session.reset();
  EXPECT_EQ(Plugin::get(), nullptr);
  load();
  EXPECT_NE(Plugin::get(), nullptr);
  EXPECT_NE(MapScriptManager::get(), nullptr);
}

TEST_F(PluginTest, ASecondStartReplacesTheFirst) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger(\"t\",true,true);\nInitEffects();\nDoLogEntry(\"INFO\",\"tick\");");
  start();
  const Plugin* first = Plugin::get();
  ASSERT_NE(session->getQsf().getPluginSystem().addPlugin(std::make_unique<Plugin>()), nullptr);
  EXPECT_NE(Plugin::get(), first);
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 2);
  EXPECT_EQ(entry(0).handler, nullptr) << "the new manager waits for the next start of a game";
  run(0.1);
  EXPECT_EQ(count(2, "tick"), 0);
  session->startGame(EMPTY_MAP);
  run(0.05);
  EXPECT_EQ(count(2, "tick"), 1) << "one manager hears the start";
}

TEST_F(PluginTest, TheEditorsReloadReadsTheListAnew) {
  load(em5::HostSession::Kind::EDITOR);
  EXPECT_TRUE(manager().getScriptEntries().empty());
  addScript("a", "EDITOR_STARTUP", "");
  write("mod", "x64/tidemark/MapScript.json",
        "{\"MapScripts\": {\"a\": {\"Path\": \"a.script\", \"Mode\": \"EDITOR_STARTUP\", \"Maps\": [\"All\"]}}}");
  emit("script::ForceHotReload_EditorOnly");
  EXPECT_EQ(manager().getScriptEntries().size(), 1u);
}

TEST_F(PluginTest, TheEditorsReloadDoesNothingInAGame) {
  start();
  emit("script::ForceHotReload_EditorOnly");
  EXPECT_EQ(count(2, "***** MapscriptManager started succesfully *****"), 1);
}

}
