#include "host/tree/Includes.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace fs = std::filesystem;

namespace includes {

namespace {

/// Where our targets look for headers, in their order.
constexpr const char* HEADER_ROOTS[] = {"", "host/include/", "host/src/"};

/// What a line includes, as it is written; empty if it includes nothing.
std::string includedBy(std::string_view line) {
  for (const std::string_view word : {"#", "include"}) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (!line.starts_with(word)) return {};
    line.remove_prefix(word.size());
  }
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (!line.starts_with('"') && !line.starts_with('<')) return {};
  line.remove_prefix(1);
  return std::string(line.substr(0, line.find_first_of("\">")));
}

std::string resolve(const std::string& root, const std::string& written) {
  for (const char* headers : HEADER_ROOTS)
    if (fs::exists(fs::path(root) / (headers + written))) return headers + written;
  return written;
}

bool isBelow(const std::string& path, const std::string& folder) {
  return path.starts_with(folder.ends_with('/') ? folder : folder + "/");
}

std::string folderOf(const std::string& path) { return fs::path(path).parent_path().generic_string(); }

using Graph = std::map<std::string, std::set<std::string>>;

std::set<std::string> reachable(const Graph& graph, const std::string& from) {
  std::set<std::string> seen;
  std::vector<std::string> open{from};
  while (!open.empty()) {
    const auto found = graph.find(open.back());
    open.pop_back();
    if (found == graph.end()) continue;
    for (const std::string& next : found->second)
      if (seen.insert(next).second) open.push_back(next);
  }
  return seen;
}

}

std::vector<Include> readIncludes(const std::string& root, const std::vector<std::string>& folders) {
  std::vector<Include> includes;
  for (const std::string& folder : folders) {
    if (!fs::exists(fs::path(root) / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(root) / folder)) {
      if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
      std::ifstream stream(entry.path());
      int number = 0;
      for (std::string line; std::getline(stream, line);) {
        ++number;
        const std::string written = includedBy(line);
        if (written.empty()) continue;
        includes.push_back({fs::relative(entry.path(), root).generic_string(), number, resolve(root, written)});
      }
    }
  }
  return includes;
}

std::vector<std::string> findOffences(const std::vector<Include>& includes, const Rule& rule) {
  const auto isIn = [](const std::string& path, const std::vector<std::string>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const std::string& beginning) { return path.starts_with(beginning); });
  };
  std::vector<std::string> offences;
  for (const Include& include : includes)
    if (isBelow(include.file, rule.from) && isIn(include.target, rule.never) && !isIn(include.target, rule.except))
      offences.push_back(include.file + ":" + std::to_string(include.line) + " includes " + include.target);
  return offences;
}

std::vector<Circle> findCircles(const std::vector<Include>& includes, const std::string& top) {
  Graph graph;
  for (const Include& include : includes)
    if (isBelow(include.file, top) && isBelow(include.target, top) &&
        folderOf(include.file) != folderOf(include.target))
      graph[folderOf(include.file)].insert(folderOf(include.target));
  std::map<std::string, std::set<std::string>> reached;
  for (const auto& [folder, next] : graph)
    reached[folder] = reachable(graph, folder);

  std::vector<Circle> circles;
  std::set<std::string> done;
  for (const auto& [folder, others] : reached) {
    if (!others.contains(folder) || !done.insert(folder).second) continue;
    Circle circle{{folder}, {}};
    for (const std::string& other : others)
      if (reached[other].contains(folder)) circle.folders.insert(other);
    done.insert(circle.folders.begin(), circle.folders.end());
    for (const Include& include : includes)
      if (folderOf(include.file) != folderOf(include.target) && circle.folders.contains(folderOf(include.file)) &&
          circle.folders.contains(folderOf(include.target)))
        circle.arrows.insert(folderOf(include.file) + " -> " + folderOf(include.target) + " (" +
                             fs::path(include.file).filename().string() + ")");
    circles.push_back(circle);
  }
  return circles;
}

}
