#include "em5/gui/HintHelper.h"

#include "qsf/base/RecordedOperation.h"

#include <algorithm>
#include <sstream>

namespace em5 {

namespace {

const qsf::RecordedOperation showHintCall{"em5::HintHelper::showHint",
                                          "text, number of the supervisor (4294967295: none), seconds as given"};

constexpr std::size_t MAXIMUM_HINTS = 50;
const qsf::Time DEFAULT_DISPLAY_TIME = qsf::Time::fromMicroseconds(10'000'000);

std::deque<HintHelper::Hint>& hints() {
  static std::deque<HintHelper::Hint> current;
  return current;
}

std::string secondsToText(qsf::Time time) {
  std::ostringstream text;
  text << time.getSecondsAsDouble();
  return text.str();
}

}

void HintHelper::showHint(const std::string& text, std::uint32_t supervisor, qsf::Time displayTime) {
  showHintCall.record({text, std::to_string(supervisor), secondsToText(displayTime)});
  hints().push_back({text, supervisor, displayTime > qsf::Time() ? displayTime : DEFAULT_DISPLAY_TIME});
  if (hints().size() > MAXIMUM_HINTS) hints().pop_front();
}

const std::deque<HintHelper::Hint>& HintHelper::getCurrentHints() { return hints(); }

void HintHelper::update(qsf::Time timePassed) {
  for (Hint& hint : hints())
    hint.displayTime -= timePassed;
  hints().erase(
      std::remove_if(hints().begin(), hints().end(), [](const Hint& hint) { return hint.displayTime <= qsf::Time(); }),
      hints().end());
}

void HintHelper::clear() { hints().clear(); }

}
