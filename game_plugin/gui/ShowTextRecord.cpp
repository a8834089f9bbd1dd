#include "game_plugin/gui/ShowTextRecord.h"

#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/language/Truncation.h"

#include "Rocket/Core.h"
#include "qsf/gui/GuiDocument.h"

#include <cmath>

namespace script {

namespace {

void setOpacity(Rocket::Core::Element& element, float opacity) {
  // Not-a-number, of an infinite time, shows the text.
  const float clamped = opacity >= 1 || opacity != opacity ? 1 : opacity <= 0 ? 0 : opacity;
  element.SetAttribute("style", "opacity: " + floatToText(clamped) + ";");
}

void fade(Rocket::Core::Element& element, float elapsed, float fadeTime, float totalTime) {
  if (fadeTime == 0)
    setOpacity(element, elapsed > 0 ? 1 : 0);
  else if (fadeTime >= elapsed)
    setOpacity(element, elapsed / fadeTime);
  else if (elapsed >= totalTime - fadeTime)
    setOpacity(element, 1 - (elapsed - totalTime + fadeTime) / fadeTime);
}

/// The first place at or behind a length where no UTF-8 character is cut.
std::size_t toCharacterEnd(const std::string& text, std::size_t length) {
  constexpr std::size_t MOST_FOLLOWERS = 3; // a text in a code page isn't searched any further
  const auto follows = [&](std::size_t i) { return (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80; };
  std::size_t end = length;
  while (end < text.size() && end - length < MOST_FOLLOWERS && follows(end))
    ++end;
  return end;
}

}

bool ShowTextRecord::update(qsf::GuiDocument& document, qsf::Time clock) {
  Rocket::Core::Element* element = document.findElementById(elementId);
  if (!element) return true;
  const float elapsed = clock.getSeconds() - startTime.getSeconds();
  if (fadeMode) {
    fade(*element, elapsed, fadeTime, totalTime);
  } else if (fadeTime >= elapsed && fadeTime > 0) {
    const float length = static_cast<float>(message.size());
    const float shown = std::floor((length + 1) * elapsed / fadeTime) + 1;
    shownLength = shown >= length ? static_cast<int>(message.size()) : truncateToInt(shown);
    const Rocket::Core::String typed(message.substr(0, toCharacterEnd(message, static_cast<std::size_t>(shownLength))));
    // A cut through a tag or an entity can't be read; what was typed before stands until the next character.
    if (Rocket::Core::IsReadable(typed)) element->SetInnerRML(typed);
  }
  if (!(elapsed > totalTime)) return true;
  element->SetAttribute("style", "display:none;");
  return false;
}

}
