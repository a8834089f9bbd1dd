// How MapScriptManager reads the MapScript.json of a mod. A fault costs the mod or the one script that has it.
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ReadableFile.h"
#include "game_plugin/scenario/lifecycle/ScriptFates.h"

#include "em5/plugin/ModSystem.h"
#include "qsf/asset/Project.h"

#include <boost/property_tree/json_parser.hpp>

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace script {

namespace {

using boost::property_tree::ptree;

struct ModeText {
  std::string_view text;
  ScriptMode mode;
};
constexpr ModeText MODES[] = {{"GAME_STARTUP", ScriptMode::GAME_STARTUP},
                              {"MAP_STARTUP", ScriptMode::MAP_STARTUP},
                              {"TEMPORARY", ScriptMode::TEMPORARY},
                              {"EDITOR_STARTUP", ScriptMode::EDITOR_STARTUP},
                              {"MAP_STARTUP_SIMULATION", ScriptMode::MAP_STARTUP_SIMULATION}};

std::string scriptDirectoryOf(const em5::Mod& mod) {
  return mod.getProject()->getAbsoluteDirectory() + "/x64/tidemark/";
}

/// The JSON reader calls itself once per level, so a file of nothing but brackets would end the process.
void checkNesting(const std::string& text) {
  constexpr int MAXIMUM_DEPTH = 200;
  int depth = 0;
  bool inText = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (inText && c == '\\')
      ++i;
    else if (c == '"')
      inText = !inText;
    else if (!inText && (c == '{' || c == '['))
      ++depth;
    else if (!inText && (c == '}' || c == ']'))
      --depth;
    if (depth > MAXIMUM_DEPTH)
      throw std::runtime_error("objects and arrays are nested more than " + std::to_string(MAXIMUM_DEPTH) +
                               " levels deep");
  }
}

/// Throws what the file's faults are, as a std::exception.
ptree readJsonFile(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  ptree root;
  try {
    checkNesting(text);
    std::istringstream input(text);
    boost::property_tree::read_json(input, root);
  } catch (const boost::property_tree::json_parser_error& error) {
    throw boost::property_tree::json_parser_error(error.message(), file, error.line());
  } catch (const std::exception& error) {
    throw boost::property_tree::json_parser_error(error.what(), file, 1);
  }
  return root;
}

/// Logs why a script can't be used, and notes it for tools. Gives false.
bool refuse(const MapScriptEntry& entry, const std::string& message) {
  logError(message);
  fates::noteRefused(entry, message);
  return false;
}

bool refuseMissingNode(const MapScriptEntry& entry, const std::string& node) {
  return refuse(entry, "MapscriptManager: The node \"" + node + "\" cant be found. Skipping Creation Process");
}

std::vector<std::string> readMaps(const ptree& values) {
  std::vector<std::string> maps;
  for (const auto& child : values) {
    const std::string& map = child.second.data();
    if (map == "All" || qsf::AssetProxy(map).getAsset())
      maps.push_back(map);
    else
      logWarning("MapscriptManager: Map \"" + map +
                 "\"is no valid LocalAssetName. A valid name would be \"em5/map/map03_berlin/map03_berlin\"");
  }
  return maps;
}

/// Reads `<node>.Mode`. False, with a message, if the script can't be made.
bool readMode(const ptree& root, const std::string& node, MapScriptEntry& entry) {
  const auto text = root.get_optional<std::string>(node + ".Mode");
  if (!text) return refuseMissingNode(entry, node + ".Mode");
  entry.mode = toScriptMode(*text);
  if (entry.mode != ScriptMode::UNKNOWN) return true;
  return refuse(entry, "MapscriptManager: " + entry.key +
                           " cant be created because the Mode \"5\" does not exist. Try to use \"GAME_STARTUP\", "
                           "\"MAP_STARTUP_SIMULATION\", \"MAP_STARTUP\" or \"EDITOR_STARTUP\" (but Editor_Startup can "
                           "cause crashes! GUI "
                           "Functions and Select-Conditions+ Effects arent supported)");
}

}

ScriptMode toScriptMode(std::string_view text) {
  for (const ModeText& mode : MODES)
    if (mode.text == text) return mode.mode;
  return ScriptMode::UNKNOWN;
}

std::string_view toText(ScriptMode mode) {
  for (const ModeText& candidate : MODES)
    if (candidate.mode == mode) return candidate.text;
  return "UNKNOWN";
}

void MapScriptManager::readMod(const em5::Mod& mod) {
  const std::string directory = scriptDirectoryOf(mod);
  const std::string file = directory + "MapScript.json";
  if (!canOpenFile(file)) {
    logInfo("Mapscript.json was NOT found at the path : " + file);
    return;
  }
  logInfo("Mapscript.json was found at the path : " + directory);
  ptree root;
  try {
    root = readJsonFile(file);
  } catch (const std::exception& error) {
    logError(error.what());
    fates::noteUnreadable(error.what());
    return;
  }
  readScripts(mod, root);
}

void MapScriptManager::readScripts(const em5::Mod& mod, const ptree& root) {
  const auto scripts = root.get_child_optional("MapScripts");
  if (!scripts) {
    logInfo("Node Mapscripts was not found");
    return;
  }
  for (const auto& child : *scripts) {
    logInfo("\tMapscriptManager: Try to create MapScript:\t" + child.first);
    logInfo("");
    auto entry = std::make_unique<MapScriptEntry>();
    entry->key = child.first;
    entry->project = mod.getProject()->getName();
    if (!readScript(mod, root, *entry)) continue;
    mScriptEntries.push_back(entry.release());
    logInfo("\tMapscriptManager: Created MapScript:\t" + child.first + " succesfully");
  }
  logInfo("***** MapscriptManager created " + std::to_string(mScriptEntries.size()) + " mapscripts *****");
}

bool MapScriptManager::readScript(const em5::Mod& mod, const ptree& root, MapScriptEntry& entry) const {
  // The key becomes part of a path whose separator is the dot: a key that holds one names another node, or none.
  const std::string node = "MapScripts." + entry.key;
  const auto path = root.get_optional<std::string>(node + ".Path");
  if (!path) return refuseMissingNode(entry, node + ".Path");
  entry.globalNamePrefix = entry.project + "/" + *path;
  entry.path = scriptDirectoryOf(mod) + *path;
  if (!canOpenFile(entry.path))
    return refuse(entry, "MapscriptManager: " + entry.key + " cant be created because the Mapscriptfile \"" +
                             entry.path + "\" does not exist or can't be open");
  if (!readMode(root, node, entry)) return false;
  const auto maps = root.get_child_optional(node + ".Maps");
  if (!maps) return refuseMissingNode(entry, node + ".Maps");
  entry.maps = readMaps(*maps);
  if (!entry.maps.empty()) return true;
  return refuse(entry, "MapscriptManager: Array of valid maps is emptry");
}

}
