#pragma once
#include <CLI/CLI.hpp>

#include <map>
#include <string>

/// Kinds of options that commands have in common. A value that they refuse is wrong usage.
namespace tidemark {

/// Accepts a number from `minimum` to `maximum`, both included. Not-a-number is in no range: a run of that length would
/// never end.
CLI::Validator numberFrom(double minimum, double maximum);
/// Accepts a whole number of 64 bits without a sign.
CLI::Validator wholeNumber();
/// Accepts what can name a language: "en", "pt-BR".
CLI::Validator languageCode();
/// Accepts any text but the empty one, which `what` names in the fault.
CLI::Validator notEmpty(std::string what);

/// An option whose value is one of some names. Its default is what `value` holds now. `names` and `value` must outlive
/// the parsing.
template <class Value>
void addChoice(CLI::App& command, const std::string& option, const std::map<std::string, Value>& names, Value& value,
               const std::string& help) {
  std::string choices, present;
  for (const auto& [name, meaning] : names) {
    choices += (choices.empty() ? "" : ", ") + name;
    if (meaning == value) present = name;
  }
  command
      .add_option_function<std::string>(
          option, [&names, &value](const std::string& name) { value = names.at(name); }, help + ": " + choices)
      ->check(CLI::Validator(
          [&names, choices](std::string& name) {
            return names.contains(name) ? std::string() : "'" + name + "' is none of " + choices;
          },
          ""))
      ->default_str(present)
      ->type_name("NAME");
}

}
