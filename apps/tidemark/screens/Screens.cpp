#include "apps/tidemark/screens/Screens.h"

#include "apps/tidemark/screens/DocumentPage.h"

#include "Rocket/Core/ElementDocument.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/gui/GuiDocument.h"

#include <fmt/format.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tidemark::screens {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view INDEX_STYLES = R"(
:root { color-scheme: light dark; }
body { font: 16px/1.5 system-ui, sans-serif; margin: 2rem auto; max-width: 1320px; padding: 0 1rem; }
.stage { position: relative; width: 1280px; height: 720px; max-width: 100%; overflow: auto; background: #48584f; }
.stage iframe { position: absolute; left: 0; top: 0; width: 1280px; height: 720px; border: 0; pointer-events: none; color-scheme: normal; }
)";

std::string fileName(const std::string& text) {
  std::string name;
  for (const char character : text)
    name +=
        std::isalnum(static_cast<unsigned char>(character)) || character == '_' || character == '-' ? character : '_';
  return name.substr(0, 60);
}

std::string folderName(const Moment& moment) { return fmt::format("{:.2f}s", moment.seconds); }

void writeFile(const fs::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error(fmt::format("--screens: '{}' can't be written", path.string()));
}

void makeFolder(const fs::path& path) {
  std::error_code fault;
  fs::create_directories(path, fault);
  if (!fs::is_directory(path, fault))
    throw std::runtime_error(fmt::format("--screens: the folder '{}' can't be made", path.string()));
}

std::string indexPage(const std::vector<Moment>& moments) {
  std::string page = fmt::format("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                                 "<title>Screens</title>\n<style>{}</style>\n</head>\n<body>\n<h1>Screens</h1>\n",
                                 INDEX_STYLES);
  for (const Moment& moment : moments) {
    page += fmt::format("<section>\n<h2 id=\"{0}\">{0}</h2>\n", folderName(moment));
    page += moment.pages.empty() ? "<p>No document was visible.</p>\n" : "<div class=\"stage\">";
    for (const Page& each : moment.pages)
      page += fmt::format("<iframe title=\"{1}\" src=\"{0}/{1}.html#over\"></iframe>", folderName(moment), each.name);
    if (!moment.pages.empty()) page += "</div>\n<ul>\n";
    for (const Page& each : moment.pages)
      page += fmt::format("<li><a href=\"{0}/{1}.html\">{1}</a></li>\n", folderName(moment), each.name);
    page += moment.pages.empty() ? "</section>\n" : "</ul>\n</section>\n";
  }
  return page + "</body>\n</html>\n";
}

}

Moment takeScreens(double seconds) {
  Moment moment;
  moment.seconds = seconds;
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui) return moment;
  for (const qsf::GuiDocument* window : gui->getGuiContext().getDocuments()) {
    const Rocket::Core::ElementDocument* document = window->getElementDocument();
    if (!window->isVisible() || !document) continue;
    const std::string name = fs::path(std::string(document->GetSourceURL())).stem().generic_string();
    moment.pages.push_back({fmt::format("{:02}-{}", moment.pages.size() + 1, fileName(name)), documentPage(*document)});
  }
  return moment;
}

std::string makeScreenFolder(const std::string& directory) {
  const fs::path path = fs::absolute(directory);
  makeFolder(path);
  return path.string();
}

void writeScreens(const std::string& directory, const std::vector<Moment>& moments) {
  for (const Moment& moment : moments) {
    const fs::path folder = fs::path(directory) / folderName(moment);
    makeFolder(folder);
    for (const Page& page : moment.pages)
      writeFile(folder / (page.name + ".html"), page.html);
  }
  writeFile(fs::path(directory) / "index.html", indexPage(moments));
}

}
