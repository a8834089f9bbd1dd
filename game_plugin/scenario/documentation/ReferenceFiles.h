#pragma once
#include "game_plugin/scenario/documentation/Dictionary.h"

#include <string>
#include <string_view>
#include <vector>

namespace script::documentation {

struct ReferenceFile {
  std::string_view name;
  std::string text;
};

/// The inner part of a completions file of Sublime Text: an object for each entry, one for `Always` at the end.
std::string writeSublimeCompletions(const Dictionary& dictionary);

/// A page of tables: a summary by runs of equal categories, then each entry with its parameters. Descriptions are HTML,
/// and names and defaults stand as they are.
enum class TableKind { CONDITIONS, EFFECTS };
std::string writeTable(const Dictionary& dictionary, TableKind kind);

/// The three files that the game gives authors, as they stand now. Needs no host.
std::vector<ReferenceFile> makeReferenceFiles();

/// What each start of the module does: writes the files into the working directory, unless a tool has said that it
/// wants none. Whether that succeeds nobody asks: a start never fails because of it.
void leaveReferenceFiles();
/// For tools, before the module starts: whether starts leave the files. At first they do.
void wantReferenceFiles(bool wanted);

}
