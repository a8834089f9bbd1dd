#pragma once
#include "apps/tidemark/test/TestPlan.h"

#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// Goes through a test file line by line: sorts the lines into the scripts and files that the test installs and turns
/// its directives into a plan. A faulty directive is noted and the reading goes on, so that an author sees all faults
/// at once.
class PlanReader {
public:
  explicit PlanReader(const std::string& file);
  PlanResult read(const std::string& text);

private:
  void readLine(std::string_view line, int number);
  bool readRawLine(std::string_view line);
  void readDirectiveLine(std::string_view line, int number);
  void dispatch(const Directive& directive, WordCursor& words);
  bool readSection(const Directive& directive, WordCursor& words);
  bool readScriptSetting(const Directive& directive, WordCursor& words);
  bool readGameSetting(const Directive& directive, WordCursor& words);
  bool readStep(const Directive& directive, WordCursor& words);
  void beginScript(WordCursor& words);
  void beginFile(WordCursor& words);
  void beginProject(const Directive& directive, WordCursor& words);
  void mountProject(const Directive& directive, WordCursor& words);
  void playProject(const Directive& directive, WordCursor& words);
  std::string takeFolder(WordCursor& words) const;
  void readPeers(const Directive& directive, WordCursor& words);
  void readTimedStep(const Directive& directive, WordCursor& words);
  void finish();
  void finishPlay();
  void checkTimes();
  void checkMachines();
  void addFault(int line, std::string text) { mResult.faults.push_back({line, std::move(text)}); }
  /// Main keeps an empty line for each line of a section, so that a line of it has the number that its author sees.
  std::string& mainText() { return mResult.plan.projects.front().scripts.front().text; }
  ProjectPlan& project() { return mResult.plan.projects[mProject]; }

  PlanResult mResult;
  std::size_t mProject = 0; ///< the one that sections belong to
  std::string* mText;       ///< where the lines go
  bool mInMain = true;
  bool mInFile = false; ///< up to `$ @end`
  int mFileLine = 0;
  int mCodeLine = 0;          ///< of main's first line that is no comment; 0: none
  int mScriptSettingLine = 0; ///< of the first directive about the scripts of the test; 0: none
};

}
