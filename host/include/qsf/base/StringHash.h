#pragma once
#include "qsf/Export.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace qsf {

/// The hash value that names nothing; also the hash of the empty text.
inline constexpr std::uint32_t UNINITIALIZED_STRING_HASH = 0xFFFFFFFFu;

/// 32-bit name of a class, an asset, a message: FNV-1a over the text's bytes, each taken as a signed character and
/// extended to 32 bits, and over the terminating NUL as well. Constant expressions, so ids can be `constexpr`.
class QSF_API StringHash {
public:
  constexpr StringHash() = default;
  constexpr StringHash(std::uint32_t hash) : mHash(hash) {}
  constexpr StringHash(std::string_view text) : mHash(compute(text)) {}
  constexpr StringHash(const char* text) : mHash(compute(text)) {}
  StringHash(const std::string& text) : mHash(compute(text)) {}

  constexpr std::uint32_t getHash() const { return mHash; }
  constexpr bool isInitialized() const { return mHash != UNINITIALIZED_STRING_HASH; }
  friend constexpr bool operator==(StringHash, StringHash) = default;
  friend constexpr auto operator<=>(StringHash, StringHash) = default;

  /// Offset basis 0x811C9DC5, prime 16777619.
  static constexpr std::uint32_t compute(std::string_view text) {
    if (text.empty()) return UNINITIALIZED_STRING_HASH;
    std::uint32_t hash = 0x811C9DC5u;
    for (const char character : text)
      hash = (hash ^ static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<signed char>(character)))) *
             16777619u;
    return hash * 16777619u; // the NUL: xor with 0, then the multiplication
  }

private:
  std::uint32_t mHash = UNINITIALIZED_STRING_HASH;
};

}

template <> struct std::hash<qsf::StringHash> {
  std::size_t operator()(qsf::StringHash value) const noexcept { return value.getHash(); }
};
