#include "qsf/message/MessageSystem.h"
#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/message/MessageProxy.h"

namespace qsf {

namespace detail {

/// A registered listener. Shared by its proxy and the system, so that a listener may unregister itself while it runs.
struct MessageListener {
  MessageSystem* system = nullptr; ///< null once the listener is unregistered or the system is gone
  MessageConfiguration message;
  MessageProxy::MessageFunction function;
};

}

namespace {

std::string getMessageName(StringHash id) {
  const Qsf* host = Qsf::instance();
  const std::string name = host ? host->getStringHashManager().getStringByHash(id) : std::string();
  return name.empty() ? std::to_string(id.getHash()) : name;
}

}

MessageSystem::MessageSystem() = default;

MessageSystem::~MessageSystem() {
  for (auto& [id, listeners] : mListeners)
    for (const auto& listener : listeners)
      listener->system = nullptr;
  // Destroying a function may unregister further listeners; those find no system any more.
  const auto listeners = std::move(mListeners);
}

void MessageSystem::addMessageName(const std::string& name) {
  mNames.insert(name);
  if (const Qsf* host = Qsf::instance()) host->getStringHashManager().registerStringHash(StringHash(name), name);
}

void MessageSystem::emitMessage(const MessageConfiguration& message) { emitMessage(MessageParameters(message)); }

void MessageSystem::emitMessage(const MessageParameters& parameters) {
  if (mTooDeep) return;
  const MessageConfiguration& message = parameters.getMessage();
  if (mDepth >= MAXIMUM_DEPTH) {
    mTooDeep = true; // without this, listeners that answer each other could keep the host busy for ever
    reportFault("message " + getMessageName(message.getId()),
                "more than " + std::to_string(MAXIMUM_DEPTH) + " messages nested in one another, dropped");
    return;
  }
  ++mEmitted[message.getId()];
  for (const auto& observer : mObservers)
    observer(message);
  const auto found = mListeners.find(message.getId());
  if (found == mListeners.end()) return;

  ++mDepth;
  // The list keeps its place while others are added to the map. Listeners that register inside hear the next message.
  const auto& listeners = found->second;
  const std::size_t size = listeners.size();
  for (std::size_t i = 0; i < size; ++i) {
    const std::shared_ptr<detail::MessageListener> listener = listeners[i];
    if (listener->system && listener->message.matches(message))
      callGuarded([&] { listener->function(parameters); },
                  [&] { return "a listener to message " + getMessageName(message.getId()); });
  }
  --mDepth;
  if (mDepth == 0) {
    mTooDeep = false;
    removeEndedListeners();
  }
}

void MessageSystem::addObserver(std::function<void(const MessageConfiguration&)> observer) {
  mObservers.push_back(std::move(observer));
}

std::uint64_t MessageSystem::getEmittedCount(StringHash id) const {
  const auto found = mEmitted.find(id);
  return found == mEmitted.end() ? 0 : found->second;
}

std::map<std::string, std::uint64_t> MessageSystem::getEmittedCounts() const {
  std::map<std::string, std::uint64_t> counts;
  for (const auto& [id, count] : mEmitted)
    counts[getMessageName(id)] = count;
  return counts;
}

void MessageSystem::addListener(const std::shared_ptr<detail::MessageListener>& listener) {
  listener->system = this;
  mListeners[listener->message.getId()].push_back(listener);
}

void MessageSystem::removeListener(detail::MessageListener& listener) {
  listener.system = nullptr;
  mIdsWithEndedListeners.insert(listener.message.getId());
  if (mDepth == 0) removeEndedListeners();
}

void MessageSystem::removeEndedListeners() {
  // Destroying a function may unregister further listeners, so the lists are whole again before any function goes.
  std::vector<std::shared_ptr<detail::MessageListener>> ended;
  const std::set<StringHash> ids = std::exchange(mIdsWithEndedListeners, {}); // each once, however many have ended
  for (const StringHash id : ids) {
    auto& listeners = mListeners[id];
    for (const auto& listener : listeners)
      if (!listener->system) ended.push_back(listener);
    std::erase_if(listeners, [](const auto& listener) { return listener->system == nullptr; });
  }
}

void MessageProxy::registerAt(const MessageConfiguration& message, const MessageFunction& function) {
  unregister();
  const Qsf* host = Qsf::instance();
  if (!host) return;
  mListener = std::make_shared<detail::MessageListener>();
  mListener->message = message;
  mListener->function = function;
  host->getMessageSystem().addListener(mListener);
}

void MessageProxy::unregister() {
  // The member is emptied first: the listener's function may own this very proxy.
  const std::shared_ptr<detail::MessageListener> listener = std::move(mListener);
  mListener.reset();
  if (listener && listener->system) listener->system->removeListener(*listener);
}

bool MessageProxy::isRegistered() const { return mListener && mListener->system; }

}
