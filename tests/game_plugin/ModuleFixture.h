#pragma once
#include "game_plugin/plugin/Plugin.h"
#include "game_plugin/scenario/documentation/ReferenceFiles.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "host/em5/SessionFixture.h"

#include "qsf/message/MessageSystem.h"
#include "qsf/plugin/PluginSystem.h"

/// A session whose one mod, "mod", has scripts, with the module as a plug-in of the program. Its starts leave no
/// reference files.
class ModuleTest : public SessionTest {
protected:
  ModuleTest() { script::documentation::wantReferenceFiles(false); }
  ~ModuleTest() override { script::documentation::wantReferenceFiles(true); }

  /// Lists a script of the mod; its text is the file's.
  void addScript(const std::string& key, const std::string& mode, const std::string& text,
                 const std::string& maps = "\"All\"") {
    write("mod", "x64/tidemark/" + key + ".script", text);
    mList += (mList.empty() ? "" : ",\n") + ("\"" + key + "\": {\"Path\": \"" + key + ".script\", \"Mode\": \"") +
             mode + "\", \"Maps\": [" + maps + "]}";
  }
  std::string scriptPath(const std::string& key) const { return folder() + "/mod/x64/tidemark/" + key + ".script"; }
  /// A session with the plug-in, before any game.
  void load(em5::HostSession::Kind kind = em5::HostSession::Kind::GAME) {
    loadList("{\"MapScripts\": {" + mList + "}}", kind);
  }
  void loadList(const std::string& list, em5::HostSession::Kind kind = em5::HostSession::Kind::GAME) {
    write("mod", "x64/tidemark/MapScript.json", list);
    em5::HostSession::Options options;
    options.kind = kind;
    open(options);
    session->mountMod(writeProject("mod"));
    session->startup();
    ASSERT_NE(session->getQsf().getPluginSystem().addPlugin(std::make_unique<script::Plugin>()), nullptr);
  }
  void start() {
    load();
    session->startGame(EMPTY_MAP);
  }
  void emit(const char* message) { session->getQsf().getMessageSystem().emitMessage(qsf::StringHash(message)); }

  static script::MapScriptManager& manager() { return *script::MapScriptManager::get(); }
  static const script::MapScriptEntry& entry(std::size_t index) { return *manager().getScriptEntries().at(index); }
  long count(int severity, const std::string& message) const {
    return std::count(log.begin(), log.end(), std::pair<int, std::string>(severity, message));
  }

private:
  std::string mList;
};
