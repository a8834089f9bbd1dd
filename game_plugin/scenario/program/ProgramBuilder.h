#pragma once
#include "game_plugin/scenario/program/Program.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// What lines about the gamepad are checked against when they are read.
struct GamepadLayout {
  std::size_t buttons = 0;
  std::size_t axes = 0;
  bool operator==(const GamepadLayout&) const = default;
};

/// A key of a keyboard.
struct KeyboardKey {
  std::string name;
  std::string description; ///< what the player reads on it
};

/// What reading a line asks of the machine that the script will run on. The module answers for the running host, a tool
/// for a machine that it imagines.
class ReadingHost {
public:
  virtual ~ReadingHost() = default;
  /// Descriptions of the mouse's buttons, by their index; empty without a mouse.
  virtual std::vector<std::string> mouseButtons() const = 0;
  /// Nothing if no gamepad is plugged in, as on most machines.
  virtual std::optional<GamepadLayout> gamepad() const { return std::nullopt; }
  /// The keyboard's keys, by their index; empty without a keyboard.
  virtual std::vector<KeyboardKey> keyboardKeys() const { return {}; }
};

/// A program while it is being loaded. Used by ScriptParser for the time of one load.
class ProgramBuilder {
public:
  ProgramBuilder(std::string path, std::string_view text, const ReadingHost& host);

  ProgramMemory& memory() { return mProgram->mMemory; }
  const ArgumentText& intern(std::string_view text) { return mProgram->mTexts.intern(text); }
  /// A line listens to the key of that name.
  void useKey(std::string name) { mProgram->mKeys.push_back(std::move(name)); }
  std::uint32_t reserveState() { return mProgram->mStates++; }
  const ReadingHost& host() const { return mHost; }
  bool hasTriggers() const { return !mProgram->mTriggers.empty(); }
  std::size_t numberOfTriggers() const { return mProgram->mTriggers.size(); }
  void addTrigger(const TriggerProgram& trigger) { mProgram->mTriggers.push_back(&trigger); }

  /// The line that is being read, from 1: messages and hints are about it.
  void setLine(std::uint32_t line);
  std::uint32_t line() const { return mLine; }
  /// Logs about the line, now and whenever the program is shared.
  void log(int severity, const std::string& message);
  void drop(std::uint32_t column, std::string reason);

  /// The finished program; the builder is of no more use.
  std::shared_ptr<const Program> finish();
  /// The program of a text that can't be used: empty but for the message, which is logged as an error.
  std::shared_ptr<const Program> fail(const std::string& message, const std::string& reason);

private:
  std::shared_ptr<Program> mProgram;
  const ReadingHost& mHost;
  std::uint32_t mLine = 0;
};

}
