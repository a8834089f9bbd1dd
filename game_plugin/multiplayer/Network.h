#pragma once

namespace em5 {
class NetworkManager;
}

namespace script::multiplayer {

/// The host's network manager while this machine takes part in a session, else null.
em5::NetworkManager* activeNetwork();

}
