// Actions that send something: messages of the host, lines to its log.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Messages.h"
#include "apps/tidemark/test/steps/Reflection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"
#include "qsf/message/MessageSystem.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

struct Parameter {
  std::string name;
  PropertyValue value;
};

// `PARAMETER=VALUE`. Without quotes the value may be an id of a list.
Parameter takeParameter(WordCursor& words) {
  const bool quoted = words.peek() && words.peek()->quoted;
  const std::string word = words.take("PARAMETER=VALUE behind 'with'");
  const std::size_t equals = word.find('=');
  if (equals == std::string::npos || equals == 0) throw DirectiveError(fmt::format("'{}' is no PARAMETER=VALUE", word));
  WordCursor value({{word.substr(equals + 1), quoted}});
  return {word.substr(0, equals), takePropertyValue(value, "the value")};
}

Action emitMessage(WordCursor& words) {
  const std::string message = words.take("the message's name");
  std::vector<std::string> filters;
  while (!words.atEnd() && !words.peekKeyword("with"))
    filters.push_back(words.take("a filter"));
  if (filters.size() > qsf::MessageConfiguration::MAXIMUM_FILTERS)
    throw DirectiveError("a message has up to three filters");
  std::vector<Parameter> parameters;
  if (words.takeIf("with")) {
    do
      parameters.push_back(takeParameter(words));
    while (words.takeIf("with") || !words.atEnd()); // one `with` for all, or one for each
  }
  return [=](TestSession& session) {
    requireGameMessage(session, message);
    qsf::MessageParameters sent(qsf::MessageConfiguration(qsf::StringHash(message), resolveFilters(session, filters)));
    for (const Parameter& parameter : parameters)
      sent.setParameterFromText(parameter.name, resolveValue(session, parameter.value));
    session.host().getQsf().getMessageSystem().emitMessage(sent);
  };
}

Action say(WordCursor& words) {
  const std::string text = words.take("the text of the log line");
  return [text](TestSession&) { qsf::logMessage(qsf::LogSystem::INFO, text); };
}

}

std::optional<Action> readMessageAction(WordCursor& words) {
  if (words.takeIf("emit")) return emitMessage(words);
  if (words.takeIf("say")) return say(words);
  return std::nullopt;
}

}
