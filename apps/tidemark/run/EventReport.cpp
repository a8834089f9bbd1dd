#include "apps/tidemark/run/EventReport.h"

#include "apps/tidemark/text/Encoding.h"
#include "apps/tidemark/text/Table.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

const char* nameOf(em5::FreeplayEvent::State state) {
  switch (state) {
  case em5::FreeplayEvent::State::PREPARED:
    return "prepared";
  case em5::FreeplayEvent::State::RUNNING:
    return "running";
  case em5::FreeplayEvent::State::SUCCEEDED:
    return "succeeded";
  case em5::FreeplayEvent::State::FAILED:
    return "failed";
  }
  return "";
}

const char* nameOf(em5::ObjectiveType type) {
  switch (type) {
  case em5::OBJECTIVE_REQUIRED:
    return "required";
  case em5::OBJECTIVE_FAIL:
    return "fail";
  case em5::OBJECTIVE_OPTIONAL:
    return "optional";
  }
  return "";
}

std::string describe(const em5::EventRecord& event) {
  std::string text =
      fmt::format("\nevent \"{}\"  {} after {:.2f} s{}\n", toUtf8(event.name), nameOf(event.state),
                  event.runningTime.getSecondsAsDouble(), event.reason.empty() ? "" : ": " + toUtf8(event.reason));
  std::vector<std::vector<std::string>> rows;
  for (const em5::ObjectiveRecord& objective : event.objectives)
    rows.push_back({nameOf(objective.type), fmt::format("{} of {}", objective.currentNumber, objective.neededNumber),
                    objective.reached ? "reached" : "open", fmt::format("\"{}\"", toUtf8(objective.text))});
  return text + layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

Json objectiveToJson(const em5::ObjectiveRecord& objective) {
  return {{"id", toUtf8(objective.id)},         {"text", toUtf8(objective.text)},   {"kind", nameOf(objective.type)},
          {"current", objective.currentNumber}, {"needed", objective.neededNumber}, {"reached", objective.reached}};
}

}

std::vector<em5::EventRecord> collectEvents() {
  const em5::Plugin* game = em5::Plugin::getInstance();
  return game ? game->getFreeplaySystem().getEventManager().getRecords() : std::vector<em5::EventRecord>();
}

std::string describeEvents(const std::vector<em5::EventRecord>& events) {
  std::string text;
  for (const em5::EventRecord& event : events)
    text += describe(event);
  return text;
}

Json eventsToJson(const std::vector<em5::EventRecord>& events) {
  Json list = Json::array();
  for (const em5::EventRecord& event : events) {
    Json objectives = Json::array();
    for (const em5::ObjectiveRecord& objective : event.objectives)
      objectives.push_back(objectiveToJson(objective));
    list.push_back({{"name", toUtf8(event.name)},
                    {"class", event.className},
                    {"definition", toUtf8(event.definition)},
                    {"state", nameOf(event.state)},
                    {"reason", toUtf8(event.reason)},
                    {"seconds", event.runningTime.getSecondsAsDouble()},
                    {"objectives", std::move(objectives)}});
  }
  return list;
}

}
