#pragma once
#include "qsf/message/MessageParameters.h"

#include <boost/function.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <unordered_map>
#include <vector>

namespace qsf {

namespace detail {
struct MessageListener;
}

/// Delivers messages at once, inside emitMessage, to the listeners in the order they registered. A fault that escapes a
/// listener is logged and costs that listener that message. Owned by Qsf.
class QSF_API MessageSystem {
public:
  MessageSystem();
  ~MessageSystem();
  MessageSystem(const MessageSystem&) = delete;
  MessageSystem& operator=(const MessageSystem&) = delete;

  /// Makes a message known by its name, whose hash is its id: to the log, and to tools that are asked for it.
  void addMessageName(const std::string& name);
  const std::set<std::string>& getMessageNames() const { return mNames; }

  void emitMessage(const MessageConfiguration& message);
  void emitMessage(const MessageParameters& parameters);
  /// Hears every message before its listeners do: for tools that keep a book of them. It lives as long as the host.
  void addObserver(std::function<void(const MessageConfiguration&)> observer);
  /// Number of emitted messages of that id since the host's start; tests and tools read it.
  std::uint64_t getEmittedCount(StringHash id) const;
  /// All counts, by the text of the id where the string hash manager knows it and else by its number.
  std::map<std::string, std::uint64_t> getEmittedCounts() const;

  /// Messages that listeners emit while they hear one may nest this deep. Beyond it the message is dropped with an
  /// error in the log, and so are all further ones until the outermost has been delivered.
  static constexpr int MAXIMUM_DEPTH = 64;

private:
  friend class MessageProxy;
  void addListener(const std::shared_ptr<detail::MessageListener>& listener);
  void removeListener(detail::MessageListener& listener);
  void removeEndedListeners();

  std::unordered_map<StringHash, std::vector<std::shared_ptr<detail::MessageListener>>> mListeners;
  std::unordered_map<StringHash, std::uint64_t> mEmitted;
  std::set<StringHash> mIdsWithEndedListeners;
  std::set<std::string> mNames;
  std::vector<std::function<void(const MessageConfiguration&)>> mObservers;
  int mDepth = 0;
  bool mTooDeep = false;
};

}
