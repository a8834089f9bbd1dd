#include "game_plugin/scenario/documentation/ReferenceFiles.h"

#include <fstream>

namespace script::documentation {

namespace {

bool areWanted = true;

}

std::vector<ReferenceFile> makeReferenceFiles() {
  const Dictionary dictionary = makeDictionary();
  return {{"TidemarkScripts_Sublime_Complementition_Dictionary.txt", writeSublimeCompletions(dictionary)},
          {"TidemarkScripts_Table_Conditions.html", writeTable(dictionary, TableKind::CONDITIONS)},
          {"TidemarkScripts_Table_Effects.html", writeTable(dictionary, TableKind::EFFECTS)}};
}

void leaveReferenceFiles() {
  if (!areWanted) return;
  for (const ReferenceFile& file : makeReferenceFiles())
    std::ofstream(std::string(file.name), std::ios::binary | std::ios::trunc) << file.text;
}

void wantReferenceFiles(bool wanted) { areWanted = wanted; }

}
