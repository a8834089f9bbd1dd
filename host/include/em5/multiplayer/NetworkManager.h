#pragma once
#include "em5/multiplayer/Session.h"

#include <boost/signals2/signal.hpp>

namespace em5 {

/// The machine's part in a session with others, if it takes part in one. Owned by the plug-in.
class QSF_API NetworkManager {
public:
  NetworkManager();
  ~NetworkManager();
  NetworkManager(const NetworkManager&) = delete;
  NetworkManager& operator=(const NetworkManager&) = delete;

  bool isMultiplayActive() const { return mSession != nullptr; }
  /// Null in single player.
  multiplayer::SessionBase* getSession() const { return mSession.get(); }
  /// Null unless this machine is the host of a session.
  multiplayer::server::Host* getMultiplayerHost() const { return mHost; }
  /// Null unless this machine is a client in a session.
  multiplayer::client::Client* getMultiplayerClient() const { return mClient; }

  /// Emitted with each new session, before anything is sent or received: whoever handles messages registers now.
  using SessionSignal = boost::signals2::signal<void(multiplayer::SessionBase&)>;
  SessionSignal& getSessionCreatedSignal() { return mSessionCreated; }

  /// Takes part in a session from now on, as host with index 0, else as a client. A session before ends.
  multiplayer::SessionBase& createSession(std::uint8_t localIndex, std::unique_ptr<multiplayer::Transport> transport,
                                          const std::vector<std::uint8_t>& others = {});
  void endSession();
  void setTrafficListener(multiplayer::TrafficListener listener);

  // For the host session; nothing without a session.
  void startGame();
  void stopGame();
  void receive();
  void finishFrame(qsf::Time timePassed);

private:
  SessionSignal mSessionCreated;
  std::unique_ptr<multiplayer::SessionBase> mSession;
  multiplayer::server::Host* mHost = nullptr;
  multiplayer::client::Client* mClient = nullptr;
  multiplayer::TrafficListener mListener;
  bool mGameRunning = false;
};

}
