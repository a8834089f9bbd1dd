#include "em5/gui/HintHelper.h"

#include "qsf/Qsf.h"
#include "qsf/base/Random.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/localization/LocalizationSystem.h"

#include <boost/algorithm/string.hpp>

#include <sstream>

namespace em5 {

namespace {

const qsf::RecordedOperation showHintCall{"em5::HintHelper::showHint",
                                          "text, number of the supervisor (4294967295: none), seconds as given"};
const qsf::RecordedOperation showSupervisorMessageCall{"em5::HintHelper::showSupervisorMessage",
                                                       "text, `1` if it is only heard"};

constexpr std::size_t MAXIMUM_HINTS = 50;
const qsf::Time DEFAULT_DISPLAY_TIME = qsf::Time::fromMicroseconds(10'000'000);

std::deque<HintHelper::Hint>& hints() {
  static std::deque<HintHelper::Hint> current;
  return current;
}

std::deque<HintHelper::SupervisorMessage>& supervisorMessages() {
  static std::deque<HintHelper::SupervisorMessage> current;
  return current;
}

std::string secondsToText(qsf::Time time) {
  std::ostringstream text;
  text << time.getSecondsAsDouble();
  return text.str();
}

template <class Entry> void add(std::deque<Entry>& entries, Entry entry) {
  entries.push_back(std::move(entry));
  if (entries.size() > MAXIMUM_HINTS) entries.pop_front();
}

template <class Entry> void letPass(std::deque<Entry>& entries, qsf::Time timePassed) {
  for (Entry& entry : entries)
    entry.displayTime -= timePassed;
  std::erase_if(entries, [](const Entry& entry) { return entry.displayTime <= qsf::Time(); });
}

}

void HintHelper::showHint(const std::string& text, std::uint32_t supervisor, qsf::Time displayTime) {
  showHintCall.record({text, std::to_string(supervisor), secondsToText(displayTime)});
  add(hints(), Hint{text, supervisor, displayTime > qsf::Time() ? displayTime : DEFAULT_DISPLAY_TIME});
}

const std::deque<HintHelper::Hint>& HintHelper::getCurrentHints() { return hints(); }

void HintHelper::showSupervisorMessage(const std::string& text, bool audioOnly) {
  showSupervisorMessageCall.record({text, audioOnly ? "1" : "0"});
  add(supervisorMessages(), SupervisorMessage{text, audioOnly, DEFAULT_DISPLAY_TIME});
}

const std::deque<HintHelper::SupervisorMessage>& HintHelper::getCurrentSupervisorMessages() {
  return supervisorMessages();
}

std::string HintHelper::getRandomStringOfIdString(const std::string& idString) {
  const qsf::Qsf* host = qsf::Qsf::instance();
  const std::string* localised = host ? host->getLocalizationSystem().findText(idString) : nullptr;
  if (!localised) return idString;
  std::vector<std::string> texts;
  boost::algorithm::split(texts, *localised, [](char character) { return character == '|'; });
  if (texts.size() == 1) return texts.front();
  return texts[qsf::Random::getRandomUint(0, static_cast<std::uint32_t>(texts.size() - 1))];
}

void HintHelper::update(qsf::Time timePassed) {
  letPass(hints(), timePassed);
  letPass(supervisorMessages(), timePassed);
}

void HintHelper::clear() {
  hints().clear();
  supervisorMessages().clear();
}

}
