#include "apps/tidemark/test/steps/KnownNames.h"

#include <algorithm>
#include <sstream>

namespace tidemark::test {

bool isWrittenInScripts(const TestPlan& plan, const std::string& name) {
  const auto holds = [&](const ScriptSection& script) {
    std::istringstream lines(script.text);
    for (std::string line; std::getline(lines, line);)
      if (line.find('$') == std::string::npos && line.find(name) != std::string::npos) return true;
    return false;
  };
  return std::ranges::any_of(plan.projects,
                             [&](const ProjectPlan& project) { return std::ranges::any_of(project.scripts, holds); });
}

bool isWordOfActions(const TestPlan& plan, std::string_view keyword, std::size_t word, const std::string& name) {
  return std::ranges::any_of(plan.steps, [&](const Step& step) {
    const std::vector<Word> words = splitWords(step.text);
    return words.size() > word && words[0].text == keyword && words[word].text == name;
  });
}

}
