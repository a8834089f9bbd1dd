#pragma once
#include "game_plugin/tooling/Tooling.h"

#include <string>

/// How places in scripts, and what the module tells of them, are written for people. All texts are UTF-8.
namespace tidemark {

/// The file's name without its folders.
std::string fileNameOf(const std::string& path);
/// `day.script:12 Morning`.
std::string describe(const script::tooling::Origin& origin);
/// What the hint is about, with the nearest right name; without its place and count.
std::string describe(const script::tooling::HintView& hint);
/// Why the line was dropped; without its place.
std::string describe(const script::tooling::DroppedLineView& dropped);

}
