#pragma once
#include "qsf/message/MessageParameters.h"

#include <boost/function.hpp>

#include <memory>

namespace qsf {

namespace detail {
struct MessageListener;
}

/// Keeps one listener registered at the message system. The destructor unregisters, also from inside the listener.
class QSF_API MessageProxy {
public:
  using MessageFunction = boost::function<void(const MessageParameters&)>;

  MessageProxy() = default;
  ~MessageProxy() { unregister(); }
  MessageProxy(const MessageProxy&) = delete;
  MessageProxy& operator=(const MessageProxy&) = delete;

  /// Listens to that message, replacing what the proxy listened to.
  void registerAt(const MessageConfiguration& message, const MessageFunction& function);
  void unregister();
  bool isRegistered() const;

private:
  std::shared_ptr<detail::MessageListener> mListener;
};

}
