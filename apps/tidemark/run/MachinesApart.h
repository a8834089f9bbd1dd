#pragma once
#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace tidemark::run {

/// Something in which the machines of a game have come apart: what an author doesn't see from any one of them.
struct Apart {
  std::string kind;   ///< "trigger", "variable", "string", "list", "bool", "instruction", "hint"
  std::string script; ///< the file's name; empty for a global store
  unsigned int line;  ///< of the trigger, from 1; 0 for a store
  std::string name;   ///< of the trigger or the entry
  std::string text;   ///< what differs, machine by machine
  std::string advice; ///< which multiplayer mode would have run it where; empty for none
};

/// Compares the reports of the machines, each as toJson(RunReport) writes it, by machine: triggers that fired on some
/// and not on others, stores that differ, instructions that nobody took, lists that were too long to be sent.
std::vector<Apart> findMachinesApart(const std::vector<nlohmann::ordered_json>& reports);

std::string toText(const std::vector<Apart>& apart);
nlohmann::ordered_json toJson(const std::vector<Apart>& apart);

}
