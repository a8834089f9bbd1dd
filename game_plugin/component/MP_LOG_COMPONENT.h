#pragma once
#include "qsf/component/Component.h"

#include <filesystem>
#include <string>
#include <vector>

namespace script {

/// The players' log: a list of lines for each of four players and one for all, and a text file for each list. It
/// belongs on the core entity. Property "Incoming Message": a text that is set is logged for the local player; "Player
/// 1" to "Player 4", "Mixed Players": the last lines, each with its local time and a line feed.
class MP_LOG_COMPONENT : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::MP_LOG_COMPONENT"};
  static constexpr int LOCAL_PLAYER = 5;
  static constexpr int NUMBER_OF_PLAYERS = 4; ///< that have a list of their own
  /// Empties the five files; their folder is made if it is missing.
  explicit MP_LOG_COMPONENT(qsf::Prototype* prototype);
  static void declareCamp();

  /// Logs a line for a player, from 0; LOCAL_PLAYER is the one at this machine, whose lines go to the other machines of
  /// a session, too. A player beyond the four has a line in
  /// the mixed list only. A file that can't be opened loses the line without a word.
  void addLogEntry(const std::string& text, int player);

  /// The last lines of a player, from 0, and of all players together, each with its time and a line feed.
  const std::vector<std::string>& getLines(int player) const;
  const std::vector<std::string>& getMixedLines() const { return mMixed; }

  /// Where the folder `tidemark` with the files is; the module's own folder unless it is set. Tools set it before the
  /// first line.
  static void setFolder(const std::filesystem::path& folder);

protected:
  bool onStartup() override;

private:
  using Lines = std::vector<std::string>;
  std::string getIncomingMessage() const { return {}; }
  void setIncomingMessage(const std::string& text);
  void append(Lines& list, const char* file, const std::string& text);

  std::filesystem::path mFolder;
  Lines mPlayer1, mPlayer2, mPlayer3, mPlayer4, mMixed;
};

}
CAMP_TYPE_NONCOPYABLE(script::MP_LOG_COMPONENT)
