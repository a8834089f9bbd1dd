// Actions on a machine's network: leave, receive.
#include "apps/tidemark/test/Peer.h"
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "qsf/game/BitStream.h"

#include <fmt/format.h>

#include <limits>

namespace tidemark::test {

namespace {

std::vector<std::uint8_t> takeBytes(WordCursor& words) {
  const std::string text = words.take("the message's bytes, two hexadecimal digits each");
  std::vector<std::uint8_t> bytes;
  std::string digits;
  for (const char character : text) {
    if (character == ' ') continue;
    if (!std::isxdigit(static_cast<unsigned char>(character)))
      throw DirectiveError(fmt::format("'{}' is no hexadecimal digit", character));
    digits += character;
  }
  if (digits.size() % 2 != 0) throw DirectiveError("a byte has two hexadecimal digits; one is missing");
  for (std::size_t i = 0; i < digits.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
  return bytes;
}

Action takeReceive(WordCursor& words) {
  const std::uint64_t number = words.takeId("the number of the operation message");
  if (number > std::numeric_limits<std::uint32_t>::max()) throw DirectiveError("there is no message of that number");
  std::vector<std::uint8_t> bytes = takeBytes(words);
  std::uint64_t bits = bytes.size() * 8;
  if (words.takeIf("bits")) {
    bits = words.takeId("the number of bits");
    if (bits > bytes.size() * 8) throw DirectiveError(fmt::format("there are {} bits only", bytes.size() * 8));
  }
  const qsf::game::BitStream stream(std::move(bytes), static_cast<std::size_t>(bits));
  return [number = static_cast<std::uint32_t>(number), stream](TestSession& session) {
    session.peer().receive(number, stream);
  };
}

}

std::optional<Action> readNetworkAction(WordCursor& words) {
  if (words.peekKeyword("leave") && words.remaining() == 1) {
    words.takeIf("leave");
    return [](TestSession& session) { session.peer().leave(); };
  }
  if (words.takeIf("receive")) return takeReceive(words);
  return std::nullopt;
}

}
