#include "qsf/localization/LocalizationSystem.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/JsonFile.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/log/LogSystem.h"

#include <filesystem>

namespace qsf {

namespace {

const RecordedOperation setLanguageCall{"qsf::LocalizationSystem::setLanguage", "language, `1` if it is forced"};

using Texts = std::map<std::string, std::string>;

void readFile(const std::string& file, Texts& texts) {
  const Json document = readJsonFile(file);
  const JsonPlace root(document, file);
  root.expectObject();
  root.eachMember([&texts](const std::string& id, const JsonPlace& place) { texts[id] = place.asText(); });
}

/// A language is one folder's name and nothing that leads elsewhere.
bool isFolderName(const std::string& language) {
  return !language.empty() && language != "." && language != ".." &&
         language.find_first_of(std::string_view("/\\\0", 3)) == std::string::npos;
}

/// Reads the texts of one language from all mounted projects. Returns whether any project has the language.
bool readTexts(const std::string& language, Texts& texts) {
  const Qsf* host = Qsf::instance();
  if (!host || !isFolderName(language)) return false;
  bool found = false;
  for (const auto& project : host->getProjectManager().getProjects()) {
    if (!project->getAssetPackage().isMounted()) continue;
    const auto folder = std::filesystem::path(project->getAbsoluteDirectory()) / "text" / language;
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) continue;
    found = true;
    std::vector<std::filesystem::path> files;
    for (const auto& file : std::filesystem::directory_iterator(folder, error))
      if (file.path().extension() == ".json" &&
          !project->getAssetPackage().isUnmounted(
              StringHash(project->getName() + "/text/" + language + "/" + file.path().stem().string())))
        files.push_back(file.path());
    std::sort(files.begin(), files.end()); // a folder's own order differs from machine to machine
    for (const auto& file : files)
      readFile(file.string(), texts);
  }
  return found;
}

}

bool LocalizationSystem::setLanguage(const std::string& language, bool force) {
  setLanguageCall.record({language, force ? "1" : "0"});
  Texts texts;
  try {
    if (!readTexts(language, texts) && !force) return false;
  } catch (const LoadError& error) {
    logMessage(LogSystem::ERROR, error.what());
    return false;
  }
  mLanguage = language;
  mTexts = std::move(texts);
  return true;
}

void LocalizationSystem::reload() {
  Texts texts;
  readTexts(mLanguage, texts);
  mTexts = std::move(texts);
}

const std::string* LocalizationSystem::findText(const std::string& id) const {
  const auto found = mTexts.find(id);
  return found == mTexts.end() ? nullptr : &found->second;
}

std::string LocalizationSystem::translate(const std::string& id) const {
  const std::string* text = findText(id);
  return text ? *text : id;
}

std::string LocalizationSystem::translateByContextString(const std::string& context, const std::string& text) const {
  const std::string* translated = findText(context + "::" + text);
  return translated ? *translated : translate(text);
}

}
