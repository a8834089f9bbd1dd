#include "apps/tidemark/session/Maps.h"

#include "qsf/asset/Project.h"
#include "qsf/base/NearNames.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tidemark {

namespace {

constexpr std::size_t MOST_MAPS = 20; // that a message lists

std::string listMaps(std::vector<std::string> maps) {
  const std::size_t left = maps.size() > MOST_MAPS ? maps.size() - MOST_MAPS : 0;
  maps.resize(maps.size() - left);
  return fmt::format("; there are {}{}", fmt::join(maps, ", "), left > 0 ? fmt::format(" and {} more", left) : "");
}

}

std::optional<std::string> findMapOfProject(const std::string& folder) {
  const std::string path = (std::filesystem::path(folder) / "project.json").string();
  std::ifstream file(path, std::ios::binary);
  const auto root = nlohmann::json::parse(file, nullptr, false, true);
  if (!root.is_object() || !root.contains("map")) return std::nullopt;
  if (!root["map"].is_string())
    throw std::runtime_error(
        fmt::format("{}: /map: a text is expected, the local name of a map such as \"{}\"", path, DEFAULT_MAP));
  return root["map"].get<std::string>();
}

void requireMap(const qsf::ProjectManager& projects, const std::string& map) {
  const std::vector<std::string> maps = projects.getAssetNamesByType("map");
  if (std::find(maps.begin(), maps.end(), map) != maps.end()) return;
  const std::string hint = qsf::nearNamesHint(map, maps);
  throw std::runtime_error(
      fmt::format("no mounted project has a map '{}'{}", map, hint.empty() ? listMaps(maps) : hint));
}

}
