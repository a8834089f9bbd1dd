#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace script {

/// A script's text as messages name it.
class ScriptSource {
public:
  virtual const std::string& path() const = 0;
  /// Local name of the trigger that a line belongs to; empty above the first.
  virtual std::string_view triggerAt(std::uint32_t line) const = 0;

protected:
  ~ScriptSource() = default;
};

/// The line of a script that is being read, tested or run; what is logged or hinted meanwhile is about it. One store
/// for each entry is all that it costs a tick.
struct ExecutionPoint {
  const ScriptSource* source = nullptr; ///< null while no script is at work
  std::uint32_t line = 0;               ///< from 1; 0 outside of any line
};

inline ExecutionPoint executionPoint;

/// Makes a script the one at work for its lifetime. Scopes nest: an effect may load or run another script.
class ExecutionScope {
public:
  explicit ExecutionScope(const ScriptSource* source, std::uint32_t line = 0) : mOuter(executionPoint) {
    executionPoint = {source, line};
  }
  ~ExecutionScope() { executionPoint = mOuter; }
  ExecutionScope(const ExecutionScope&) = delete;
  ExecutionScope& operator=(const ExecutionScope&) = delete;

private:
  ExecutionPoint mOuter;
};

}
