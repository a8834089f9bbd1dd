// `tidemark catalogue`: the conditions and effects that scripts can name, for people and for programs.
#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/Options.h"
#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/catalogue/CatalogueText.h"
#include "apps/tidemark/session/ModuleAccess.h"

#include "qsf/base/NearNames.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace tidemark {

namespace catalogue {

namespace {

enum class Format { TEXT, JSON };

struct Options {
  std::vector<std::string> names;
  Format format = Format::TEXT;
};

const std::map<std::string, Format> FORMATS = {{"text", Format::TEXT}, {"json", Format::JSON}};

/// The entries of those names, in the order of the catalogue. A name may be a condition's and an effect's.
Entries choose(const Entries& all, const std::vector<std::string>& names) {
  if (names.empty()) return all;
  std::vector<std::string> known;
  for (const Entry& entry : all)
    known.push_back(entry.name);
  for (const std::string& name : names)
    if (std::ranges::find(known, name) == known.end())
      throw UsageError(fmt::format("there is no condition or effect '{}'{}", name, qsf::nearNamesHint(name, known)));
  Entries chosen;
  for (const Entry& entry : all)
    if (std::ranges::find(names, entry.name) != names.end()) chosen.push_back(entry);
  return chosen;
}

int show(const Options& options) {
  const LoadedModule module;
  const Entries entries = choose(module.tooling().getCatalogue(), options.names);
  const std::string text = options.format == Format::JSON ? toJson(entries)
                           : options.names.empty()        ? toList(entries)
                                                          : toText(entries);
  std::fwrite(text.data(), 1, text.size(), stdout);
  return EXIT_FINE;
}

std::function<int()> declare(CLI::App& command) {
  auto options = std::make_shared<Options>();
  command.add_option("name", options->names, "Conditions and effects to tell all about; without one, a list of all")
      ->type_name("NAME");
  addChoice(command, "--format", FORMATS, options->format, "How it is written");
  return [options] { return show(*options); };
}

}

}

Subcommand catalogueCommand() {
  return {"catalogue", "Tell what scripts can say: all conditions and effects, with their parameters",
          "Examples:\n  tidemark catalogue SpawnObject\n  tidemark catalogue --format json > catalogue.json\n\nExit "
          "codes: 0 fine, 2 wrong usage or an unknown name, 3 the module can't be loaded.",
          catalogue::declare};
}

}
