#include "apps/tidemark/run/WorldReport.h"

#include "apps/tidemark/text/Encoding.h"
#include "apps/tidemark/text/Table.h"

#include "em5/component/StatusOverlayComponent.h"
#include "em5/gui/HintHelper.h"
#include "qsf/Qsf.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/map/Map.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <tuple>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;
using Calls = std::vector<qsf::CallRecorder::Call>;

std::string nameOf(const qsf::Entity& entity) {
  const auto* metadata = entity.getComponent<qsf::MetadataComponent>();
  return metadata ? toUtf8(metadata->getName()) : std::string();
}

std::vector<OverlayReport> collectOverlays(const qsf::Map& map) {
  std::vector<OverlayReport> overlays;
  for (const qsf::Entity* entity : map.getEntities()) {
    const auto* overlay = entity->getComponent<em5::StatusOverlayComponent>();
    if (overlay && !(overlay->getVisibleIcons().empty() && overlay->getVisibleBars().empty()))
      overlays.push_back({entity->getId(), nameOf(*entity), overlay->getVisibleIcons(), overlay->getVisibleBars()});
  }
  return overlays;
}

/// Texts in the order of their first showing, found by what makes them one.
class ShownTexts {
public:
  ShownText& find(const std::string& text, std::optional<std::uint32_t> supervisor, bool audioOnly) {
    const auto [place, isNew] = mPlaces.emplace(std::tuple(text, supervisor, audioOnly), mTexts.size());
    if (isNew) mTexts.push_back({toUtf8(text), supervisor, audioOnly});
    return mTexts[place->second];
  }
  std::vector<ShownText> take() { return std::move(mTexts); }

private:
  std::map<std::tuple<std::string, std::optional<std::uint32_t>, bool>, std::size_t> mPlaces;
  std::vector<ShownText> mTexts;
};

std::optional<std::uint32_t> toSupervisor(std::uint32_t number) {
  return number == qsf::getUninitialized<std::uint32_t>() ? std::nullopt : std::optional(number);
}

void noteTimeLeft(ShownText& shown, qsf::Time displayTime) {
  shown.secondsLeft = std::max(shown.secondsLeft, displayTime.getSecondsAsDouble());
}

// What is up counts also if its call is forgotten.
std::vector<ShownText> collectHints(const Calls& calls) {
  ShownTexts shown;
  for (const auto& call : calls)
    if (call.operation == "em5::HintHelper::showHint")
      ++shown.find(call.arguments[0], toSupervisor(static_cast<std::uint32_t>(std::stoul(call.arguments[1]))), false)
            .times;
  for (const em5::HintHelper::Hint& hint : em5::HintHelper::getCurrentHints())
    noteTimeLeft(shown.find(hint.text, toSupervisor(hint.supervisor), false), hint.displayTime);
  return shown.take();
}

std::vector<ShownText> collectSupervisorMessages(const Calls& calls) {
  ShownTexts shown;
  for (const auto& call : calls)
    if (call.operation == "em5::HintHelper::showSupervisorMessage")
      ++shown.find(call.arguments[0], std::nullopt, call.arguments[1] == "1").times;
  for (const em5::HintHelper::SupervisorMessage& message : em5::HintHelper::getCurrentSupervisorMessages())
    noteTimeLeft(shown.find(message.text, std::nullopt, message.audioOnly), message.displayTime);
  return shown.take();
}

std::vector<SoundReport> collectSounds(const qsf::AudioManager& audio) {
  std::vector<SoundReport> sounds;
  for (const auto& source : audio.getSources()) {
    if (!source->isPlaying()) continue;
    const qsf::AudioSettings& settings = source->getSettings();
    SoundReport& sound = sounds.emplace_back();
    sound.file = toUtf8(settings.sourceFile);
    if (settings.contextEntityId != qsf::UNINITIALIZED_ID) sound.entityId = settings.contextEntityId;
    sound.spatial = settings.spatial;
    sound.loop = settings.loop;
    sound.volume = settings.volume;
    sound.position = source->getPosition().getSecondsAsDouble();
    sound.length = source->getAudioBuffer()->getLength().getSecondsAsDouble();
  }
  return sounds;
}

std::string describeOverlays(const std::vector<OverlayReport>& overlays) {
  std::vector<std::vector<std::string>> rows = {{"entity", "name", "icons", "bars"}};
  for (const OverlayReport& overlay : overlays) {
    std::string bars;
    for (const auto& [bar, value] : overlay.bars)
      bars += fmt::format("{}{} at {:.2f}", bars.empty() ? "" : ", ", bar, value);
    rows.push_back(
        {fmt::format("{}", overlay.entityId), overlay.name, fmt::format("{}", fmt::join(overlay.icons, " ")), bars});
  }
  return "\nicons and bars\n" + layOut(std::move(rows), "    ");
}

std::string describeShown(std::string_view title, const std::vector<ShownText>& texts) {
  std::vector<std::vector<std::string>> rows;
  for (const ShownText& shown : texts)
    rows.push_back({fmt::format("{} time{}", shown.times, shown.times == 1 ? "" : "s"),
                    shown.secondsLeft > 0 ? fmt::format("{:.1f} s left", shown.secondsLeft) : "gone",
                    fmt::format("\"{}\"{}", shown.text, shown.audioOnly ? ", only heard" : "")});
  return fmt::format("\n{}\n", title) + layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

std::string describeSounds(const WorldReport& report) {
  std::vector<std::vector<std::string>> rows;
  for (const SoundReport& sound : report.sounds)
    rows.push_back({sound.file, sound.entityId ? fmt::format("at {}", *sound.entityId) : "from nowhere",
                    fmt::format("{:.2f} of {:.2f} s{}{}", sound.position, sound.length, sound.loop ? ", looped" : "",
                                sound.spatial ? ", spatial" : ""),
                    fmt::format("volume {}", sound.volume)});
  return fmt::format("\nsounds: {} play, {} of them looped, {} files read\n", report.audio.playing, report.audio.looped,
                     report.audio.buffers) +
         layOut(std::move(rows), "    ");
}

template <class Views, class ToJson> Json listToJson(const Views& views, ToJson toJson) {
  Json list = Json::array();
  for (const auto& view : views)
    list.push_back(toJson(view));
  return list;
}

template <class Value> Json orNull(const std::optional<Value>& value) { return value ? Json(*value) : Json(nullptr); }

Json overlayToJson(const OverlayReport& overlay) {
  const auto toJson = [](const auto& bar) { return Json{{"bar", bar.first}, {"value", bar.second}}; };
  return {{"entity", overlay.entityId},
          {"name", overlay.name},
          {"icons", overlay.icons},
          {"bars", listToJson(overlay.bars, toJson)}};
}

Json hintToJson(const ShownText& hint) {
  return {{"text", hint.text},
          {"supervisor", orNull(hint.supervisor)},
          {"times", hint.times},
          {"secondsLeft", hint.secondsLeft}};
}

Json messageToJson(const ShownText& message) {
  return {{"text", message.text},
          {"audioOnly", message.audioOnly},
          {"times", message.times},
          {"secondsLeft", message.secondsLeft}};
}

Json soundToJson(const SoundReport& sound) {
  return {{"file", sound.file},    {"entity", orNull(sound.entityId)}, {"spatial", sound.spatial},
          {"loop", sound.loop},    {"volume", sound.volume},           {"position", sound.position},
          {"length", sound.length}};
}

}

WorldReport collectWorld(const qsf::Qsf& host) {
  const Calls& calls = host.getCallRecorder().getCalls();
  const qsf::AudioManager& audio = host.getAudioSystem().getAudioManager();
  return {collectOverlays(host.getMainMap()), collectHints(calls), collectSupervisorMessages(calls),
          collectSounds(audio), audio.getStatistics()};
}

std::string describeWorld(const WorldReport& report) {
  std::string text;
  if (!report.overlays.empty()) text += describeOverlays(report.overlays);
  if (!report.hints.empty()) text += describeShown("hints that were shown", report.hints);
  if (!report.supervisorMessages.empty())
    text += describeShown("messages of the supervisor", report.supervisorMessages);
  if (report.audio.playing > 0 || report.audio.buffers > 0) text += describeSounds(report);
  return text;
}

void addWorld(const WorldReport& report, Json& root) {
  root["overlays"] = listToJson(report.overlays, overlayToJson);
  root["shownHints"] = listToJson(report.hints, hintToJson);
  root["supervisorMessages"] = listToJson(report.supervisorMessages, messageToJson);
  root["audio"] = {{"playing", report.audio.playing},
                   {"looped", report.audio.looped},
                   {"buffers", report.audio.buffers},
                   {"sounds", listToJson(report.sounds, soundToJson)}};
}

}
