// Actions on the game's missions: start, save, load.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

em5::EventProperties takeProperties(WordCursor& words) {
  em5::EventProperties properties;
  while (words.takeIf("with")) {
    const std::string property = words.take("PROPERTY=VALUE");
    const std::size_t sign = property.find('=');
    if (sign == std::string::npos || sign == 0)
      throw DirectiveError(fmt::format("'{}' is no PROPERTY=VALUE", property));
    properties.emplace_back(property.substr(0, sign), property.substr(sign + 1));
  }
  return properties;
}

Action startEvent(WordCursor& words) {
  words.require("event");
  const std::string path = words.take("the definition's path");
  const em5::EventProperties properties = takeProperties(words);
  return [=](TestSession&) {
    try {
      em5::Plugin::getInstance()->getFreeplaySystem().triggerPoolEvent(path, properties);
    } catch (const std::exception& fault) {
      throw DirectiveError(fault.what());
    }
  };
}

void save(TestSession& session) {
  session.savedEvents() = em5::Plugin::getInstance()->getFreeplaySystem().getEventManager().saveEvents();
}

void load(TestSession& session) {
  if (!session.savedEvents()) throw DirectiveError("nothing has been saved");
  em5::Plugin::getInstance()->getFreeplaySystem().getEventManager().loadEvents(*session.savedEvents());
}

}

std::optional<Action> readEventAction(WordCursor& words) {
  if (words.takeIf("start")) return startEvent(words);
  if (words.takeIf("save")) return save;
  if (words.takeIf("load")) return load;
  return std::nullopt;
}

}
