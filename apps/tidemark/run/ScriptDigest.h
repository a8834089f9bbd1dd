#pragma once
#include <map>
#include <string>
#include <vector>

namespace tidemark::run {

/// What the scripts of projects say, a digest for each file. Triggers travel between machines by nothing but a hash, so
/// all machines of a game must have the same.
using ScriptDigest = std::map<std::string, std::string>; ///< by `<folder of the project>/<path in it>`

/// Of the files below `x64/tidemark` of each project. Throws std::exception for a file that can't be read.
ScriptDigest digestScripts(const std::vector<std::string>& projects);

/// What differs, file by file, for people; empty if nothing does.
std::string describeDifference(const ScriptDigest& ours, const ScriptDigest& theirs);

/// As it goes over the network.
std::string encodeDigest(const ScriptDigest& digest);
/// Throws std::exception for a text that is none.
ScriptDigest decodeDigest(const std::string& text);

}
