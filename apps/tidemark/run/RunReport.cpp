#include "apps/tidemark/run/RunReport.h"

#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/text/Encoding.h"
#include "apps/tidemark/text/Table.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;
using script::tooling::DroppedLineView;
using script::tooling::FateView;
using script::tooling::HintView;
using script::tooling::Origin;
using script::tooling::StoreKind;
using script::tooling::Tooling;
using script::tooling::TriggerView;

StoreReport collectStores(const Tooling& tooling, std::optional<std::size_t> script) {
  StoreReport stores;
  for (const std::string& name : tooling.getNames(script, StoreKind::VARIABLES))
    stores.variables.emplace_back(toUtf8(name), tooling.getVariable(script, name).value_or(0));
  for (const std::string& name : tooling.getNames(script, StoreKind::STRINGS))
    stores.strings.emplace_back(toUtf8(name), toUtf8(tooling.getString(script, name).value_or("")));
  for (const std::string& name : tooling.getNames(script, StoreKind::LISTS))
    stores.lists.emplace_back(toUtf8(name), tooling.getList(script, name).value_or(std::vector<std::uint64_t>()));
  if (script)
    for (const std::string& name : tooling.getNames(script, StoreKind::BOOLS))
      stores.bools.emplace_back(toUtf8(name), tooling.getBool(*script, name).value_or(false));
  return stores;
}

std::string describeTriggers(const std::vector<TriggerView>& triggers) {
  std::vector<std::vector<std::string>> rows = {{"trigger", "fired", "state", "conditions"}};
  for (const TriggerView& trigger : triggers)
    rows.push_back({trigger.name, fmt::format("{}", trigger.timesFired),
                    fmt::format("{}{}", trigger.active ? "active" : "inactive", trigger.looped ? ", looped" : ""),
                    fmt::format("{} of {}, {} needed", trigger.fulfilledConditions, trigger.conditions.size(),
                                trigger.requiredConditions)});
  return layOut(std::move(rows), "    ");
}

std::string describeStores(const StoreReport& stores, std::string_view indent) {
  std::vector<std::vector<std::string>> rows;
  for (const auto& [name, value] : stores.variables)
    rows.push_back({"variable", name, fmt::format("{}", value)});
  for (const auto& [name, value] : stores.strings)
    rows.push_back({"string", name, fmt::format("\"{}\"", value)});
  for (const auto& [name, value] : stores.bools)
    rows.push_back({"bool", name, value ? "true" : "false"});
  for (const auto& [name, ids] : stores.lists)
    rows.push_back({"list", name, ids.empty() ? "empty" : fmt::format("{}", fmt::join(ids, " "))});
  return layOut(std::move(rows), indent);
}

// A script that was refused for its place in the list has no mode yet.
std::string describeFate(const FateView& fate) {
  const std::string mode = fate.mode == "UNKNOWN" ? "" : fate.mode + ", ";
  return fmt::format("\nscript {}{}  {}{}{}{}\n", fate.project.empty() ? "" : fate.project + "/", fate.key, mode,
                     fate.what, fate.count > 1 ? fmt::format("; {} instances", fate.count) : "",
                     fate.time > qsf::Time::ZERO ? fmt::format("; ran {:.2f} s", fate.time.getSecondsAsDouble()) : "");
}

std::string describeDroppedLines(const std::vector<DroppedLineView>& lines) {
  std::vector<std::vector<std::string>> rows;
  for (const DroppedLineView& line : lines)
    rows.push_back({fmt::format("{}:{}:{}", fileNameOf(line.path), line.line, line.column), describe(line)});
  return fmt::format("\n{} dropped line{}\n", lines.size(), lines.size() == 1 ? "" : "s") +
         layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

std::string describeHints(const std::vector<HintView>& hints) {
  std::vector<std::vector<std::string>> rows;
  for (const HintView& hint : hints)
    rows.push_back({describe(hint.origin),
                    hint.count > 1 ? fmt::format("{} ({} times)", describe(hint), hint.count) : describe(hint)});
  return fmt::format("\n{} hint{}\n", hints.size(), hints.size() == 1 ? "" : "s") +
         layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

Json storesToJson(const StoreReport& stores) {
  // Lists of pairs: a store keeps its order, and may hold a name twice.
  const auto list = [](const auto& entries) {
    Json result = Json::array();
    for (const auto& [name, value] : entries)
      result.push_back({{"name", name}, {"value", value}});
    return result;
  };
  return {{"variables", list(stores.variables)},
          {"strings", list(stores.strings)},
          {"bools", list(stores.bools)},
          {"lists", list(stores.lists)}};
}

Json triggerToJson(const TriggerView& trigger) {
  return {{"name", trigger.name},
          {"globalName", trigger.globalName},
          {"hash", trigger.hash},
          {"line", trigger.line},
          {"fired", trigger.timesFired},
          {"active", trigger.active},
          {"looped", trigger.looped},
          {"multiplayerMode", trigger.multiplayerMode},
          {"conditions", trigger.conditions.size()},
          {"fulfilled", trigger.fulfilledConditions},
          {"required", trigger.requiredConditions},
          {"effects", trigger.effects.size()},
          {"blocks", trigger.numberOfBlocks},
          {"lastTimeActive", trigger.lastTimeActive.getSecondsAsDouble()}};
}

Json scriptToJson(const ScriptReport& report) {
  Json triggers = Json::array();
  for (const TriggerView& trigger : report.triggers)
    triggers.push_back(triggerToJson(trigger));
  return {{"key", report.script.key},
          {"project", report.script.project},
          {"path", report.script.path},
          {"mode", report.script.mode},
          {"running", report.script.running},
          {"state", report.script.state},
          {"time", report.script.time.getSecondsAsDouble()},
          {"triggers", triggers},
          {"stores", storesToJson(report.stores)}};
}

Json fateToJson(const FateView& fate) {
  return {{"key", fate.key},    {"project", fate.project}, {"path", fate.path},
          {"mode", fate.mode},  {"what", fate.what},       {"time", fate.time.getSecondsAsDouble()},
          {"count", fate.count}};
}

Json droppedLineToJson(const DroppedLineView& line) {
  return {{"script", fileNameOf(line.path)},
          {"path", toUtf8(line.path)},
          {"line", line.line},
          {"column", line.column},
          {"reason", toUtf8(line.reason)}};
}

Json hintToJson(const HintView& hint) {
  return {{"script", fileNameOf(hint.origin.path)},
          {"path", toUtf8(hint.origin.path)},
          {"line", hint.origin.line},
          {"trigger", toUtf8(hint.origin.trigger)},
          {"kind", hint.kind},
          {"text", toUtf8(hint.text)},
          {"nearest", toUtf8(hint.nearest)},
          {"count", hint.count}};
}

Json instructionToJson(const script::tooling::InstructionView& instruction) {
  return {{"hash", instruction.hash}, {"sent", instruction.sent}, {"lost", instruction.lost}};
}

template <class Views, class ToJson> Json listToJson(const Views& views, ToJson toJson) {
  Json list = Json::array();
  for (const auto& view : views)
    list.push_back(toJson(view));
  return list;
}

}

RunReport collectReport(const Tooling& tooling) {
  RunReport report;
  const auto scripts = tooling.getScripts();
  for (std::size_t i = 0; i < scripts.size(); ++i) {
    ScriptReport& script = report.scripts.emplace_back();
    script.script = scripts[i];
    script.script.key = toUtf8(script.script.key);
    script.script.path = toUtf8(script.script.path);
    script.script.project = toUtf8(script.script.project);
    script.script.state = toUtf8(script.script.state);
    script.triggers = tooling.getTriggers(i);
    for (TriggerView& trigger : script.triggers) {
      trigger.name = toUtf8(trigger.name);
      trigger.globalName = toUtf8(trigger.globalName);
    }
    script.stores = collectStores(tooling, i);
  }
  report.fates = tooling.getFates();
  for (FateView& fate : report.fates)
    for (std::string* text : {&fate.key, &fate.project, &fate.path, &fate.what})
      *text = toUtf8(*text);
  report.global = collectStores(tooling, std::nullopt);
  report.droppedLines = tooling.getDroppedLines();
  report.hints = tooling.getHints();
  report.instructions = tooling.getInstructions();
  return report;
}

std::string toText(const RunReport& report) {
  std::string text = fmt::format("\nAfter {:.2f} s on {} ({} frames)\n", report.seconds, report.map, report.frames);
  for (const ScriptReport& script : report.scripts) {
    const auto& view = script.script;
    text += fmt::format("\nscript {}{}  {}, {}\n", view.project.empty() ? "" : view.project + "/", view.key, view.mode,
                        view.state);
    if (!script.triggers.empty()) text += describeTriggers(script.triggers);
    if (!script.stores.isEmpty()) text += describeStores(script.stores, "    ");
  }
  for (const FateView& fate : report.fates)
    text += describeFate(fate);
  if (report.scripts.empty() && report.fates.empty())
    text += "\nno scripts; a project lists them in x64/tidemark/MapScript.json\n";
  if (!report.global.isEmpty()) text += "\nglobal entries\n" + describeStores(report.global, "    ");
  text += describeEvents(report.events);
  text += describeWorld(report.world);
  text += describeGame(report.game);
  text += describeEditorSteps(report.editorSteps);
  if (!report.hints.empty()) text += describeHints(report.hints);
  if (!report.droppedLines.empty()) text += describeDroppedLines(report.droppedLines);
  if (report.faults > 0)
    text += fmt::format("\n{} fault{}, the last: {}\n", report.faults, report.faults == 1 ? "" : "s", report.lastFault);
  return text;
}

std::string toJson(const RunReport& report) {
  Json root = {{"map", report.map},
               {"seconds", report.seconds},
               {"frames", report.frames},
               {"faults", report.faults},
               {"lastFault", report.lastFault},
               {"scripts", listToJson(report.scripts, scriptToJson)},
               {"ended", listToJson(report.fates, fateToJson)},
               {"global", storesToJson(report.global)},
               {"events", eventsToJson(report.events)},
               {"droppedLines", listToJson(report.droppedLines, droppedLineToJson)},
               {"hints", listToJson(report.hints, hintToJson)},
               {"instructions", listToJson(report.instructions, instructionToJson)}};
  addWorld(report.world, root);
  addGame(report.game, root);
  addEditorSteps(report.editorSteps, root);
  return root.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}
