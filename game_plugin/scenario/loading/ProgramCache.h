#pragma once
#include "game_plugin/scenario/program/ProgramBuilder.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// Programs in use, by the file and the name that they were read under. A script that starts another each second has
/// one program for all of them; it goes with the last document that runs it. A gamepad that was plugged in or out makes
/// the next start read the file anew, since lines about it are checked when they are read.
class ProgramCache {
public:
  /// The program of what the file holds now. One that is in use is shared, and its messages are logged again, as if it
  /// had been read anew.
  std::shared_ptr<const Program> load(const std::string& path, const std::string& globalNamePrefix);
  /// Lines that were dropped, by file, as each was read last; tools show them.
  const std::map<std::string, std::vector<DroppedLine>>& droppedLines() const { return mDroppedLines; }

private:
  /// What a program was read from: the file's text, and the gamepad that its lines were checked against.
  struct Content {
    std::size_t size = 0;
    std::uint64_t hash1 = 0, hash2 = 0;
    std::optional<GamepadLayout> gamepad;
    bool operator==(const Content&) const = default;
  };
  struct Entry {
    Content content;
    std::weak_ptr<const Program> program;
  };
  static Content summarize(std::string_view text);
  void forgetUnused();

  std::map<std::string, Entry> mEntries;
  std::map<std::string, std::vector<DroppedLine>> mDroppedLines;
  std::size_t mLoadsUntilSweep = 1;
};

}
