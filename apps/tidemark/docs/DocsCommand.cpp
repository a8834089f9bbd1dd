// `tidemark docs`: the reference of the catalogue as files, for editors, for programs and for people.
#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/Options.h"
#include "apps/tidemark/OutputFile.h"
#include "apps/tidemark/Subcommand.h"
#include "apps/tidemark/catalogue/CatalogueText.h"
#include "apps/tidemark/docs/ReferencePage.h"
#include "apps/tidemark/session/ModuleAccess.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <filesystem>
#include <memory>

namespace tidemark {

namespace docs {

namespace {

namespace fs = std::filesystem;

void makeFolder(const fs::path& folder) {
  std::error_code fault;
  fs::create_directories(folder, fault);
  if (!fs::is_directory(folder)) // also a file of that name
    throw std::runtime_error(
        fmt::format("{} can't be made a folder{}{}", folder.string(), fault ? ": " : "", fault ? fault.message() : ""));
}

int writeDocs(const fs::path& folder) {
  const LoadedModule module;
  const catalogue::Entries entries = module.tooling().getCatalogue();
  std::vector<script::tooling::ReferenceFile> texts = {{"reference.html", toPage(entries)},
                                                       {"catalogue.json", catalogue::toJson(entries)}};
  for (script::tooling::ReferenceFile& file : module.tooling().getReferenceFiles())
    texts.push_back(std::move(file));
  makeFolder(folder);
  // All are opened before the first is written: who can't have one of them keeps what was there.
  std::vector<std::unique_ptr<OutputFile>> files;
  for (const script::tooling::ReferenceFile& text : texts)
    files.push_back(std::make_unique<OutputFile>("DIR", (folder / text.name).string()));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    files[i]->write(texts[i].text);
    fmt::print("{}\n", (folder / texts[i].name).string());
  }
  return EXIT_FINE;
}

std::function<int()> declare(CLI::App& command) {
  auto folder = std::make_shared<std::string>();
  command.add_option("dir", *folder, "Folder for the files; it is made if it isn't there")
      ->required()
      ->check(notEmpty("a folder"))
      ->type_name("DIR");
  return [folder] { return writeDocs(*folder); };
}

}

}

Subcommand docsCommand() {
  return {"docs",
          "Write the reference: a page to read and search, the catalogue as JSON, and the game's own three files",
          "Example:\n  tidemark docs reference && xdg-open reference/reference.html\n\nreference.html is for people: "
          "all conditions and effects with a filter, in one file that asks for\nnothing else. catalogue.json is what "
          "'tidemark catalogue --format json' prints. The three\nTidemarkScripts files are those that the game leaves "
          "at each start.\nThe names of the files go to standard output.\nExit codes: 0 fine, 2 wrong usage, 3 the "
          "module can't be loaded or a file not be written.",
          docs::declare};
}

}
