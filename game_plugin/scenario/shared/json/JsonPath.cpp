#include "game_plugin/scenario/shared/json/JsonPath.h"

#include "game_plugin/scenario/shared/json/JsonFile.h"

#include <boost/property_tree/ptree.hpp>

#include <stdexcept>
#include <vector>

namespace script {

namespace {

using boost::property_tree::ptree;

/// At least one key; "a." has an empty one behind "a". Trees are as deep as a path is long, and recursion works on
/// them.
std::vector<std::string> splitPath(const std::string& path) {
  std::vector<std::string> keys;
  std::size_t begin = 0;
  for (std::size_t dot = path.find('.'); dot != std::string::npos; dot = path.find('.', begin)) {
    keys.push_back(path.substr(begin, dot - begin));
    begin = dot + 1;
    if (keys.size() >= MAXIMUM_JSON_DEPTH)
      throw std::runtime_error("the path has more than " + std::to_string(MAXIMUM_JSON_DEPTH) + " keys");
  }
  keys.push_back(path.substr(begin));
  return keys;
}

/// The first child of that key, made if it is missing.
ptree& childOf(ptree& tree, const std::string& key) {
  const auto found = tree.find(key);
  return found != tree.not_found() ? found->second : tree.push_back({key, ptree()})->second;
}

/// The tree in which the path's last key stands. Written out, since the library's own way is recursive and not defined
/// for a path that is empty or ends with a dot.
ptree& parentOf(ptree& tree, const std::vector<std::string>& keys) {
  ptree* parent = &tree;
  for (std::size_t i = 0; i + 1 < keys.size(); ++i)
    parent = &childOf(*parent, keys[i]);
  return *parent;
}

}

void putJsonValue(ptree& tree, const std::string& path, const std::string& value) {
  const std::vector<std::string> keys = splitPath(path);
  // An empty path is the tree itself, and a last dot means nothing where the place is there, as in reading.
  const auto present = tree.get_child_optional(path);
  (present ? *present : childOf(parentOf(tree, keys), keys.back())).data() = value;
}

void addJsonChild(ptree& tree, const std::string& path, const ptree& child) {
  const std::vector<std::string> keys = splitPath(path);
  parentOf(tree, keys).push_back({keys.back(), child});
}

}
