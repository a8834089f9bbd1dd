// Actions of the player on documents, and what the audio tracker shows.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Documents.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "Rocket/Core/Element.h"
#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/audio/AudioSystem.h"

#include <fmt/format.h>

#include <limits>

namespace tidemark::test {

namespace {

// What a player can't see takes no event. The ingame main menu does: it stands for the key that brings it up, too.
bool takesEvents(const TestSession& session, const ElementReference& reference) {
  return reference.document == "mainmenu_ingame" || isElementVisible(session, reference);
}

Action clickAction(WordCursor& words) {
  const ElementReference reference = takeElementReference(words);
  return [reference](TestSession& session) {
    Rocket::Core::Element& element = requireElement(session, reference);
    if (takesEvents(session, reference)) element.Click();
  };
}

Action eventAction(WordCursor& words) {
  const std::string type = words.take("the event's type");
  const ElementReference reference = takeElementReference(words);
  return [type, reference](TestSession& session) {
    Rocket::Core::Element& element = requireElement(session, reference);
    if (takesEvents(session, reference)) element.DispatchEvent(type, {}, true);
  };
}

std::uint32_t takeCounter(WordCursor& words, std::string_view what) {
  const std::uint64_t counter = words.takeId(what);
  if (counter > std::numeric_limits<std::uint32_t>::max())
    throw DirectiveError(fmt::format("{} is out of range", what));
  return static_cast<std::uint32_t>(counter);
}

Action audioAction(WordCursor& words) {
  words.require("statistics");
  qsf::AudioManager::Statistics statistics;
  statistics.playing = takeCounter(words, "the first counter");
  statistics.looped = takeCounter(words, "the second counter");
  statistics.buffers = takeCounter(words, "the third counter");
  return [statistics](TestSession& session) {
    session.host().getQsf().getAudioSystem().getAudioManager().overrideStatistics(statistics);
  };
}

}

std::optional<Action> readDocumentAction(WordCursor& words) {
  if (words.takeIf("click")) return clickAction(words);
  if (words.takeIf("event")) return eventAction(words);
  if (words.takeIf("audio")) return audioAction(words);
  return std::nullopt;
}

}
