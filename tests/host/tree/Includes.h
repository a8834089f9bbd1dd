#pragma once
#include <map>
#include <set>
#include <string>
#include <vector>

namespace includes {

/// `#include "..."` of one of our own files, as a path below the tree's root: a header of the host that is written
/// `qsf/Qsf.h` counts as `host/include/qsf/Qsf.h`. A header that nobody has, a library's, keeps what is written.
struct Include {
  std::string file;
  int line = 0;
  std::string target;
};

/// An arrow that must not be: files below `from` include nothing that begins with one of `never`, unless it begins with
/// one of `except`. Paths are those of Include.
struct Rule {
  std::string from;
  std::vector<std::string> never;
  std::vector<std::string> except = {};
};

/// All includes in the sources below those folders of the tree.
std::vector<Include> readIncludes(const std::string& root, const std::vector<std::string>& folders);

/// A line for each include that the rule forbids: file, line, target.
std::vector<std::string> findOffences(const std::vector<Include>& includes, const Rule& rule);

/// The folders below `top` that include each other in a circle, one set for each circle, with the arrows in it as
/// "folder -> folder (file)". The top folder itself counts as one of them.
struct Circle {
  std::set<std::string> folders;
  std::set<std::string> arrows;
};
std::vector<Circle> findCircles(const std::vector<Include>& includes, const std::string& top);

}
