#pragma once
#include <memory>
#include <string>
#include <vector>

namespace script {

/// What a script bids for its mouse click command.
struct ScriptedCommandRecord {
  float priority = 0; ///< 0: it is not offered
  std::string mouseIcon;
  std::string commandName;
  bool armed = false; ///< the conditions of its trigger held when they were tested last
};

/// The bids of all scripts for mouse click commands, one row for each command's name, in the order of the first use.
/// Owned by MapScriptManager; rows stay over maps. Between the two calls of a trigger stand the conditions that decide
/// whether the command is there: if they fail, the second call doesn't come, and the next first call takes the bid
/// back.
class ScriptedCommands {
public:
  /// The first condition of the trigger is tested. A new row gets the icon, which then stays.
  void beginBid(const std::string& name, const std::string& mouseIcon);
  /// The last condition of the trigger is reached. Kept: a row that is new here gets no priority yet.
  void confirmBid(const std::string& name, float priority);

  const std::vector<std::unique_ptr<ScriptedCommandRecord>>& rows() const { return mRows; }
  /// Null if no trigger has named it.
  const ScriptedCommandRecord* find(const std::string& name) const;

private:
  ScriptedCommandRecord* findRow(const std::string& name) const;
  void addRow(const std::string& name, const std::string& mouseIcon);

  std::vector<std::unique_ptr<ScriptedCommandRecord>> mRows;
};

}
