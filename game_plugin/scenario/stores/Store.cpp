#include "game_plugin/scenario/stores/Store.h"

namespace script::detail {

std::uint32_t nextStoreEpoch() {
  static std::uint32_t epoch = 0;
  do
    ++epoch;
  while (epoch == 0 || epoch == ~0u);
  return epoch;
}

std::string_view withOneMark(std::string_view name, std::string& buffer) {
  constexpr char MARK = '\xA7';
  if (name.find(MARK) == std::string_view::npos) return name;
  buffer.clear();
  bool isBehindMark = false;
  for (const char c : name) {
    // Behind another byte of a multi-byte character it is no mark of a code page.
    const bool isLone =
        c == MARK && (buffer.empty() || isBehindMark || static_cast<unsigned char>(buffer.back()) < 0x80);
    if (isLone) buffer += '\xC2';
    buffer += c;
    isBehindMark = isLone;
  }
  return buffer;
}

}
