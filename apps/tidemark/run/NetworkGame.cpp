#include "apps/tidemark/run/NetworkGame.h"

#include "apps/tidemark/run/ScriptDigest.h"

#include "em5/multiplayer/NetworkTransport.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdio>

namespace tidemark::run {

namespace {

using em5::multiplayer::Greeting;
using em5::multiplayer::NetworkAddress;
using nlohmann::json;

constexpr std::chrono::seconds PATIENCE{5};
/// A stranger's list of files is shown to a person: no further than this.
constexpr std::size_t MOST_OF_A_DIFFERENCE = 1000;

struct Guest {
  bool allowDifference = false;
  ScriptDigest digest;
};

Guest readGreeting(const std::string& text) {
  const json greeting = json::parse(text);
  return {greeting.at("allowDifference").get<bool>(), decodeDigest(greeting.at("scripts").get<std::string>())};
}

// Who greets may stay if its scripts are ours; both sides can let a difference pass, and both are told of it.
Greeting judge(const std::string& text, const ScriptDigest& ours, const std::string& map, bool allowDifference) {
  Guest guest;
  try {
    guest = readGreeting(text);
  } catch (const std::exception&) {
    return {false, "the greeting can't be read"};
  }
  std::string difference = describeDifference(ours, guest.digest);
  if (difference.size() > MOST_OF_A_DIFFERENCE) difference = difference.substr(0, MOST_OF_A_DIFFERENCE) + "...";
  const std::string shown = json(difference).dump(-1, ' ', true, json::error_handler_t::replace);
  if (!difference.empty() && !allowDifference && !guest.allowDifference) {
    fmt::print(stderr, "tidemark run: a machine is refused, its scripts are others: {}\n", shown);
    return {false, fmt::format("the scripts are not the same: {}; --allow-difference joins all the same", difference)};
  }
  if (!difference.empty()) fmt::print(stderr, "tidemark run: a machine joins with other scripts: {}\n", shown);
  return {true, json({{"map", map}, {"difference", difference}}).dump(-1, ' ', false, json::error_handler_t::replace)};
}

}

Seat serveGame(const RunOptions& options) {
  const NetworkAddress address = NetworkAddress::parse(*options.serve);
  const ScriptDigest digest = digestScripts(options.projects);
  const std::string map = findMap(options);
  auto server = std::make_unique<em5::multiplayer::NetworkServer>(
      address, [digest, map, allow = options.allowDifference](const std::string& greeting) {
        return judge(greeting, digest, map, allow);
      });
  fmt::print(stderr, "tidemark run: serving at {}:{}\n", address.host, server->getPort());
  Seat seat;
  seat.map = map;
  seat.transport = std::move(server);
  return seat;
}

Seat joinGame(const RunOptions& options) {
  const json greeting = {{"allowDifference", options.allowDifference},
                         {"scripts", encodeDigest(digestScripts(options.projects))}};
  auto client = std::make_unique<em5::multiplayer::NetworkClient>(NetworkAddress::parse(*options.join), greeting.dump(),
                                                                  PATIENCE);
  const json answer = json::parse(client->getAnswer());
  if (const std::string difference = answer.at("difference"); !difference.empty())
    fmt::print(stderr, "tidemark run: the host's scripts are others: {}\n", difference);
  Seat seat;
  seat.player = client->getIndex();
  seat.others = client->getOthers();
  seat.map = answer.at("map").get<std::string>();
  seat.transport = std::move(client);
  return seat;
}

}
