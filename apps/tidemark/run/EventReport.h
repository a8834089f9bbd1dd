#pragma once
#include "em5/freeplay/FreeplayEventManager.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace tidemark::run {

/// Of the running game: its missions, those that have ended first. Empty in the editor.
std::vector<em5::EventRecord> collectEvents();

/// What became of them and why, for people; empty if there were none.
std::string describeEvents(const std::vector<em5::EventRecord>& events);
/// The member "events".
nlohmann::ordered_json eventsToJson(const std::vector<em5::EventRecord>& events);

}
