#include "apps/tidemark/run/GameReport.h"

#include "apps/tidemark/text/Encoding.h"
#include "apps/tidemark/text/Table.h"

#include "em5/application/AccountManager.h"
#include "em5/application/Application.h"
#include "em5/gui/EmergencyGui.h"
#include "em5/gui/SEKDroneScanWindow.h"
#include "em5/plugin/Plugin.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/audio/DynamicMusicCompositorComponent.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/game/AchievementSystem.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/map/LayerManager.h"
#include "qsf/map/Map.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

void collectMap(const qsf::Qsf& host, GameReport& report) {
  report.simulates = host.getMainMap().isSimulating();
  for (const qsf::Layer* layer : host.getLayerManager().getLayers())
    report.layers.emplace_back(toUtf8(layer->getName()), layer->isActive());
  const qsf::Entity* core = host.getMainMap().getCoreEntity();
  if (!core) return;
  if (const auto* clock = core->getComponent<qsf::game::TimeOfDayComponent>())
    report.timeOfDay = fmt::format("{}:{:02}:{:02}", clock->getHour(), clock->getMinute(), clock->getSecond());
  if (const auto* music = core->getComponent<qsf::DynamicMusicCompositorComponent>())
    report.music = {music->getMusicLevel(), music->getTrackLevel(), music->getMaxMusicVolume()};
}

void collectPages(const qsf::Qsf& host, GameReport& report) {
  for (const auto& call : host.getCallRecorder().getCalls()) {
    if (call.operation != "qsf::PlatformSystem::openUrlExternal") continue;
    const std::string page = toUtf8(call.arguments[0]);
    const auto known = std::ranges::find(report.pages, page, [](const auto& entry) { return entry.first; });
    if (known != report.pages.end())
      ++known->second;
    else
      report.pages.emplace_back(page, 1);
  }
}

void collectDrone(GameReport& report) {
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  const em5::IngameHud* hud = gui ? gui->getIngameHud() : nullptr;
  const em5::SEKDroneScanWindow* window = hud ? hud->getSEKDroneScanWindow() : nullptr;
  if (window && window->isVisible() && window->getObservedEntityId() != qsf::UNINITIALIZED_ID)
    report.droneEntity = window->getObservedEntityId();
}

}

GameReport collectGame(const qsf::Qsf& host) {
  GameReport report;
  report.language = toUtf8(host.getLocalizationSystem().getLanguage());
  for (const auto& project : host.getProjectManager().getProjects())
    if (project->getAssetPackage().isMounted()) report.projects.push_back(toUtf8(project->getName()));
  collectMap(host, report);
  collectPages(host, report);
  collectDrone(report);
  if (const qsf::UniqueInstance<em5::Application> application; application)
    report.cloudSyncPaused = application->getAccountManager().isCloudSyncPaused();
  if (em5::Plugin* plugin = em5::Plugin::getInstance())
    report.achievementsLocked = plugin->getAchievementSystem().isWriteLocked();
  return report;
}

std::string describeGame(const GameReport& report) {
  std::vector<std::vector<std::string>> rows;
  if (report.layers.size() > 1)
    for (const auto& [name, active] : report.layers)
      rows.push_back({"layer", fmt::format("\"{}\" is {}", name, active ? "active" : "inactive")});
  if (report.music)
    rows.push_back({"music", fmt::format("level {}, the track of level {}, volume {}", report.music->level,
                                         report.music->trackLevel, report.music->maximumVolume)});
  if (report.droneEntity) rows.push_back({"drone", fmt::format("looks at {}", *report.droneEntity)});
  for (const auto& [page, times] : report.pages)
    rows.push_back({"page", fmt::format("\"{}\", asked for {} time{}", page, times, times == 1 ? "" : "s")});
  if (report.cloudSyncPaused) rows.push_back({"cloud", "saved games are not synchronised"});
  if (report.achievementsLocked) rows.push_back({"achievements", "locked"});
  return rows.empty() ? std::string() : "\nthe game as a whole\n" + layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

void addGame(const GameReport& report, Json& root) {
  Json layers = Json::array(), pages = Json::array();
  for (const auto& [name, active] : report.layers)
    layers.push_back({{"name", name}, {"active", active}});
  for (const auto& [page, times] : report.pages)
    pages.push_back({{"page", page}, {"times", times}});
  Json& game = root["game"] = {{"timeOfDay", report.timeOfDay},
                               {"language", report.language},
                               {"projects", report.projects},
                               {"layers", layers},
                               {"simulates", report.simulates},
                               {"music", nullptr},
                               {"droneEntity", nullptr},
                               {"pages", pages},
                               {"cloudSyncPaused", report.cloudSyncPaused},
                               {"achievementsLocked", report.achievementsLocked}};
  if (report.music)
    game["music"] = {{"level", report.music->level},
                     {"trackLevel", report.music->trackLevel},
                     {"maximumVolume", report.music->maximumVolume}};
  if (report.droneEntity) game["droneEntity"] = *report.droneEntity;
}

}
