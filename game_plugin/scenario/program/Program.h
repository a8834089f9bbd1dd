#pragma once
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/program/Argument.h"
#include "game_plugin/scenario/program/Records.h"

#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace script {

/// What a script's text says of one trigger. Never changes after the load.
struct TriggerProgram {
  std::int32_t requiredConditions = -1; ///< how many conditions must hold
  std::uint8_t multiplayerMode = 0;     ///< 0 host only, 1 evaluated everywhere and run on the host, 2 everywhere
  bool initialActive = true;
  bool initialLooped = false;
  Conditions conditions;
  Effects effects;
  std::uint32_t globalNameHash = qsf::UNINITIALIZED_STRING_HASH;
  std::uint32_t line = 0; ///< line of InitNewTrigger
  RecordList<ConditionalBlock> conditionalBlocks;
  std::string_view name = "trigger1"; ///< local name; a view like globalName, whose end it is
  std::string_view globalName;        ///< load prefix, `/`, local name
};

/// A line that the loader dropped, and why.
struct DroppedLine {
  std::uint32_t line = 0;   ///< from 1; 0 if the whole script can't be used
  std::uint32_t column = 1; ///< from 1, in bytes
  std::string reason;
};

/// What a text means: its triggers with their conditions and effects. Made once by ScriptParser for a file's content,
/// immutable from then on, shared by all documents that run it, and gone with the last of them.
class Program final : public ScriptSource {
public:
  /// A message that the load has logged. Whoever shares the program later tells it again.
  struct Message {
    std::uint32_t line;
    int severity;
    std::string text;
  };

  Program(std::string path, std::size_t textSize);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  const std::string& path() const override { return mPath; }
  const std::vector<const TriggerProgram*>& triggers() const { return mTriggers; }
  /// Index of the first trigger of that local name or hash.
  std::optional<std::uint32_t> findTrigger(std::string_view name) const;
  std::optional<std::uint32_t> findTrigger(std::uint32_t hash) const;
  std::string_view triggerAt(std::uint32_t line) const override;

  /// How many places in stores a run remembers, and how many cells of state it holds.
  std::uint32_t numberOfSlots() const { return mTexts.size(); }
  std::uint32_t numberOfStates() const { return mStates; }
  /// The file is UTF-8 and holds a multi-byte character.
  bool writesMarkAsUtf8() const { return mWritesMarkAsUtf8; }
  /// Names of the keys that lines listen to.
  const std::vector<std::string>& keys() const { return mKeys; }
  const std::vector<DroppedLine>& droppedLines() const { return mDroppedLines; }
  /// A fault of a line made the whole script unusable; the last dropped line is that one.
  bool hasFailed() const { return mFailed; }
  const std::vector<Message>& messages() const { return mMessages; }

private:
  friend class ProgramBuilder;
  void buildIndices() const;

  std::string mPath;
  ProgramMemory mMemory;
  ArgumentTexts mTexts;
  std::vector<const TriggerProgram*> mTriggers;
  std::vector<std::string> mKeys;
  std::vector<DroppedLine> mDroppedLines;
  std::vector<Message> mMessages;
  std::uint32_t mStates = 0;
  bool mWritesMarkAsUtf8 = false;
  bool mFailed = false;
  // Built at the first search: most scripts never look a trigger up.
  mutable std::unordered_map<std::string_view, std::uint32_t> mByName;
  mutable std::unordered_map<std::uint32_t, std::uint32_t> mByHash;
};

}
