#include "apps/tidemark/run/MachinesApart.h"

#include "apps/tidemark/session/Places.h"
#include "apps/tidemark/text/Table.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view MODES[] = {"MP_Trigger_Runs_On_Hostside", "MP_GUI_Sync", "MP_Run_Independend"};

/// One script over all machines; a script may run several times.
using ScriptKey = std::tuple<std::string, std::string, std::size_t>; ///< project, key, which of them
struct Script {
  std::string file;
  std::vector<const Json*> machines; ///< null where it isn't known
};

std::map<ScriptKey, Script> collectScripts(const std::vector<Json>& reports) {
  std::map<ScriptKey, Script> scripts;
  for (std::size_t machine = 0; machine < reports.size(); ++machine) {
    std::map<std::pair<std::string, std::string>, std::size_t> seen;
    for (const Json& script : reports[machine].at("scripts")) {
      const std::string project = script.at("project"), key = script.at("key");
      Script& known = scripts[{project, key, seen[{project, key}]++}];
      known.file = fileNameOf(script.at("path"));
      known.machines.resize(reports.size());
      known.machines[machine] = &script;
    }
  }
  return scripts;
}

/// "3 times on machine 0, never on machines 1 and 2"
template <class Value, class Describe>
std::string describeByMachine(const std::vector<Value>& values, Describe describe) {
  std::vector<std::pair<Value, std::vector<std::size_t>>> groups;
  for (std::size_t machine = 0; machine < values.size(); ++machine) {
    const auto group =
        std::find_if(groups.begin(), groups.end(), [&](const auto& known) { return known.first == values[machine]; });
    if (group == groups.end())
      groups.push_back({values[machine], {machine}});
    else
      group->second.push_back(machine);
  }
  std::string text;
  for (const auto& [value, machines] : groups) {
    std::string names;
    for (std::size_t i = 0; i < machines.size(); ++i)
      names += fmt::format("{}{}", i == 0 ? "" : i + 1 == machines.size() ? " and " : ", ", machines[i]);
    text += fmt::format("{}{} on machine{} {}", text.empty() ? "" : ", ", describe(value),
                        machines.size() == 1 ? "" : "s", names);
  }
  return text;
}

std::string adviseMode(std::uint64_t mode, const std::vector<std::uint64_t>& fired) {
  switch (mode) {
  case 0:
    return fmt::format("{}: the host alone runs it; {} would have run it on each machine, {} on the host for a client "
                       "whose conditions hold",
                       MODES[0], MODES[2], MODES[1]);
  case 1:
    return fmt::format("{}: the host runs it for all; {} would have run it on each machine", MODES[1], MODES[2]);
  default:
    return fired.front() > 0 ? fmt::format("{}: each machine judges for itself, and the conditions held on some only; "
                                           "{} would have the host alone run it",
                                           MODES[2], MODES[0])
                             : fmt::format("{}: each machine judges for itself; {} would have run it on the host when "
                                           "a client's conditions hold",
                                           MODES[2], MODES[1]);
  }
}

void compareTriggers(const Script& script, std::vector<Apart>& apart) {
  const auto first = std::find_if(script.machines.begin(), script.machines.end(), [](const Json* s) { return s; });
  const Json& triggers = (*first)->at("triggers");
  for (std::size_t i = 0; i < triggers.size(); ++i) {
    std::vector<std::uint64_t> fired;
    for (const Json* machine : script.machines)
      fired.push_back(machine && i < machine->at("triggers").size()
                          ? machine->at("triggers")[i].at("fired").get<std::uint64_t>()
                          : 0);
    const auto never = std::count(fired.begin(), fired.end(), 0u);
    if (never == 0 || never == static_cast<std::ptrdiff_t>(fired.size())) continue;
    const std::string text = describeByMachine(fired, [](std::uint64_t times) {
      return times == 0 ? std::string("never") : fmt::format("fired {} time{}", times, times == 1 ? "" : "s");
    });
    apart.push_back({"trigger", script.file, triggers[i].at("line"), triggers[i].at("name"), text,
                     adviseMode(triggers[i].at("multiplayerMode"), fired)});
  }
}

std::string describeValue(const Json& value) {
  if (value.is_null()) return "missing";
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// Entries of one kind of store by name; the first of a name counts.
Json entriesOf(const Json* stores, const char* kind) {
  Json entries = Json::object();
  if (!stores || !stores->contains(kind)) return entries;
  for (const Json& entry : stores->at(kind))
    if (!entries.contains(entry.at("name"))) entries[entry.at("name").get<std::string>()] = entry.at("value");
  return entries;
}

void compareStores(const std::string& file, const std::vector<const Json*>& stores, std::vector<Apart>& apart) {
  static constexpr std::pair<const char*, const char*> KINDS[] = {
      {"variables", "variable"}, {"strings", "string"}, {"bools", "bool"}, {"lists", "list"}};
  for (const auto& [plural, kind] : KINDS) {
    std::vector<Json> entries;
    std::vector<std::string> names;
    for (const Json* machine : stores) {
      entries.push_back(entriesOf(machine, plural));
      for (const auto& [name, value] : entries.back().items())
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
    for (const std::string& name : names) {
      std::vector<Json> values;
      for (const Json& machine : entries)
        values.push_back(machine.value(name, Json()));
      if (std::all_of(values.begin(), values.end(), [&](const Json& value) { return value == values.front(); }))
        continue;
      apart.push_back({kind, file, 0, name, describeByMachine(values, describeValue), ""});
    }
  }
}

/// Names of triggers by hash, with file and line.
std::map<std::uint64_t, Apart> namesOfHashes(const std::vector<Json>& reports) {
  std::map<std::uint64_t, Apart> names;
  for (const Json& report : reports)
    for (const Json& script : report.at("scripts"))
      for (const Json& trigger : script.at("triggers"))
        names.try_emplace(
            trigger.at("hash").get<std::uint64_t>(),
            Apart{"instruction", fileNameOf(script.at("path")), trigger.at("line"), trigger.at("name"), "", ""});
  return names;
}

void compareInstructions(const std::vector<Json>& reports, std::vector<Apart>& apart) {
  const std::map<std::uint64_t, Apart> names = namesOfHashes(reports);
  std::map<std::uint64_t, std::vector<std::uint64_t>> lost;
  for (std::size_t machine = 0; machine < reports.size(); ++machine)
    for (const Json& instruction : reports[machine].at("instructions"))
      if (const std::uint64_t times = instruction.at("lost"); times > 0) {
        auto& byMachine = lost[instruction.at("hash")];
        byMachine.resize(reports.size());
        byMachine[machine] = times;
      }
  for (const auto& [hash, byMachine] : lost) {
    const auto known = names.find(hash);
    Apart found = known != names.end() ? known->second : Apart{"instruction",
                                                               "",
                                                               0,
                                                               fmt::format("trigger with the hash {}", hash),
                                                               "",
                                                               "no script of any machine has such a trigger"};
    found.text = describeByMachine(byMachine, [](std::uint64_t times) {
      return times == 0 ? std::string("fine or not sent") : fmt::format("{} sent in vain", times);
    });
    if (known != names.end()) found.advice = "the script that holds the trigger doesn't run there";
    apart.push_back(std::move(found));
  }
}

void collectHints(const std::vector<Json>& reports, std::vector<Apart>& apart) {
  for (std::size_t machine = 0; machine < reports.size(); ++machine)
    for (const Json& hint : reports[machine].at("hints"))
      if (hint.at("kind") == "network")
        apart.push_back({"hint", hint.at("script"), hint.at("line"), hint.at("trigger"),
                         fmt::format("{}, on machine {}", hint.at("text").get<std::string>(), machine), ""});
}

}

std::vector<Apart> findMachinesApart(const std::vector<Json>& reports) {
  std::vector<Apart> apart;
  const std::map<ScriptKey, Script> scripts = collectScripts(reports);
  for (const auto& [key, script] : scripts)
    compareTriggers(script, apart);
  const auto storesOf = [](const Json* holder, const char* member) { return holder ? &holder->at(member) : nullptr; };
  std::vector<const Json*> global;
  for (const Json& report : reports)
    global.push_back(storesOf(&report, "global"));
  compareStores("", global, apart);
  for (const auto& [key, script] : scripts) {
    std::vector<const Json*> local;
    for (const Json* machine : script.machines)
      local.push_back(storesOf(machine, "stores"));
    compareStores(script.file, local, apart);
  }
  compareInstructions(reports, apart);
  collectHints(reports, apart);
  return apart;
}

std::string toText(const std::vector<Apart>& apart) {
  if (apart.empty())
    return "\nmachines apart\n    nowhere: the same triggers fired on all, and their stores are alike\n";
  std::vector<std::vector<std::string>> rows;
  for (const Apart& item : apart) {
    const std::string place = item.script.empty() ? "global"
                              : item.line > 0     ? fmt::format("{}:{}", item.script, item.line)
                                                  : item.script;
    rows.push_back({place, item.kind, item.name, item.text});
    if (!item.advice.empty()) rows.push_back({"", "", "", item.advice});
  }
  return "\nmachines apart\n" + layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

Json toJson(const std::vector<Apart>& apart) {
  Json list = Json::array();
  for (const Apart& item : apart)
    list.push_back({{"kind", item.kind},
                    {"script", item.script},
                    {"line", item.line},
                    {"name", item.name},
                    {"text", item.text},
                    {"advice", item.advice}});
  return list;
}

}
