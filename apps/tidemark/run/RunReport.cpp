#include "apps/tidemark/run/RunReport.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;
using script::tooling::StoreKind;
using script::tooling::Tooling;
using script::tooling::TriggerView;

StoreReport collectStores(const Tooling& tooling, std::optional<std::size_t> script) {
  StoreReport stores;
  for (const std::string& name : tooling.getNames(script, StoreKind::Variables))
    stores.variables.emplace_back(toUtf8(name), tooling.getVariable(script, name).value_or(0));
  for (const std::string& name : tooling.getNames(script, StoreKind::Strings))
    stores.strings.emplace_back(toUtf8(name), toUtf8(tooling.getString(script, name).value_or("")));
  for (const std::string& name : tooling.getNames(script, StoreKind::Lists))
    stores.lists.emplace_back(toUtf8(name), tooling.getList(script, name).value_or(std::vector<std::uint64_t>()));
  if (script)
    for (const std::string& name : tooling.getNames(script, StoreKind::Bools))
      stores.bools.emplace_back(toUtf8(name), tooling.getBool(*script, name).value_or(false));
  return stores;
}

constexpr std::size_t LONGEST_CELL = 80; // characters
constexpr std::size_t MOST_ROWS = 200;   // of one table; the JSON report has all

// Columns as wide as their widest cell; the last one isn't padded.
std::string layOut(std::vector<std::vector<std::string>> rows, std::string_view indent) {
  const std::size_t left = rows.size() > MOST_ROWS ? rows.size() - MOST_ROWS : 0;
  rows.resize(rows.size() - left);
  for (auto& row : rows)
    for (std::string& cell : row)
      cell = toCell(cell, LONGEST_CELL);
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], displayWidth(row[i]));
  }
  std::string text;
  for (const auto& row : rows) {
    text += indent;
    for (std::size_t i = 0; i < row.size(); ++i)
      text += row[i] + (i + 1 < row.size() ? std::string(widths[i] - displayWidth(row[i]) + 2, ' ') : "\n");
  }
  if (left > 0) text += fmt::format("{}... and {} more, which --report FILE lists\n", indent, left);
  return text;
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
          {"time", report.script.time.getSecondsAsDouble()},
          {"triggers", triggers},
          {"stores", storesToJson(report.stores)}};
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
    script.triggers = tooling.getTriggers(i);
    for (TriggerView& trigger : script.triggers) {
      trigger.name = toUtf8(trigger.name);
      trigger.globalName = toUtf8(trigger.globalName);
    }
    script.stores = collectStores(tooling, i);
  }
  report.global = collectStores(tooling, std::nullopt);
  return report;
}

std::string toText(const RunReport& report) {
  std::string text = fmt::format("\nAfter {:.2f} s on {} ({} frames)\n", report.seconds, report.map, report.frames);
  for (const ScriptReport& script : report.scripts) {
    const auto& view = script.script;
    text += fmt::format("\nscript {}{}  {}, {}\n", view.project.empty() ? "" : view.project + "/", view.key, view.mode,
                        view.running ? "running" : "stopped");
    if (!script.triggers.empty()) text += describeTriggers(script.triggers);
    if (!script.stores.isEmpty()) text += describeStores(script.stores, "    ");
  }
  if (report.scripts.empty()) text += "\nno scripts; a project lists them in x64/tidemark/MapScript.json\n";
  if (!report.global.isEmpty()) text += "\nglobal entries\n" + describeStores(report.global, "    ");
  if (report.faults > 0)
    text += fmt::format("\n{} fault{}, the last: {}\n", report.faults, report.faults == 1 ? "" : "s", report.lastFault);
  return text;
}

std::string toJson(const RunReport& report) {
  Json scripts = Json::array();
  for (const ScriptReport& script : report.scripts)
    scripts.push_back(scriptToJson(script));
  const Json root = {{"map", report.map},
                     {"seconds", report.seconds},
                     {"frames", report.frames},
                     {"faults", report.faults},
                     {"lastFault", report.lastFault},
                     {"scripts", scripts},
                     {"global", storesToJson(report.global)}};
  return root.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}
