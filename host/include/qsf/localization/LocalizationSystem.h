#pragma once
#include "qsf/Export.h"

#include <map>
#include <string>

namespace qsf {

/// The game's texts in the player's language. A project's texts are the files `<project>/text/<language>/*.json`, each
/// a flat object from text id to text. Files of a project are read by ascending name, projects in the order of
/// mounting, and the text read last wins. Owned by Qsf.
class QSF_API LocalizationSystem {
public:
  /// "en" at the host's start.
  const std::string& getLanguage() const { return mLanguage; }
  /// The language that the program begins with; its texts come with the projects, through reload.
  void setStartLanguage(const std::string& language) { mLanguage = language; }
  /// Takes a language, a folder name such as "de", and reads its texts anew. False, and everything stays as it was, if
  /// no mounted project has texts in that language and it isn't forced, or if a file is faulty, which is logged at
  /// severity 4. Noted in the call recorder.
  bool setLanguage(const std::string& language, bool force = false);
  /// Reads the texts of the language anew, after projects were mounted. Throws LoadError for a faulty file, with the
  /// file and the JSON path; the texts then stay as they were.
  void reload();

  /// Null if the language has no such text.
  const std::string* findText(const std::string& id) const;
  /// The id itself if the language has no such text.
  std::string translate(const std::string& id) const;
  /// The text of the id "<context>::<text>" if there is one, else of the id `text`, else `text` itself.
  std::string translateByContextString(const std::string& context, const std::string& text) const;

private:
  std::string mLanguage = "en";
  std::map<std::string, std::string> mTexts;
};

}
