// Actions on the run itself: pause, other maps, reload.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/LoadError.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"

namespace tidemark::test {

namespace {

constexpr const char* EDITOR_RELOAD_MESSAGE = "script::ForceHotReload_EditorOnly";

void startGame(TestSession& session, const std::string& map) {
  try {
    session.host().startGame(map);
  } catch (const qsf::LoadError& fault) {
    throw DirectiveError(fault.what());
  }
}

void reload(TestSession& session) {
  if (session.plan().editor)
    session.host().getQsf().getMessageSystem().emitMessage(
        qsf::MessageConfiguration(qsf::StringHash(EDITOR_RELOAD_MESSAGE)));
  else
    session.tooling().reload();
}

}

std::optional<Action> readLifecycleAction(WordCursor& words) {
  if (words.takeIf("pause")) return [](TestSession& session) { session.host().setPaused(true); };
  if (words.takeIf("resume")) return [](TestSession& session) { session.host().setPaused(false); };
  if (words.takeIf("map")) {
    const std::string map = words.take("the map's name");
    return [map](TestSession& session) { startGame(session, map); };
  }
  if (words.takeIf("restart"))
    // A copy of the name: the map forgets it when the game ends.
    return [](TestSession& session) {
      startGame(session, std::string(session.host().getQsf().getMainMap().getLocalAssetName()));
    };
  if (words.takeIf("reload")) return reload;
  return std::nullopt;
}

}
