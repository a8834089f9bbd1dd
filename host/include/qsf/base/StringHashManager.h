#pragma once
#include "qsf/base/StringHash.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace qsf {

/// Remembers which text a hash came from, so that tools and logs can show it. Owned by Qsf.
class QSF_API StringHashManager {
public:
  /// Remembers the pair. The first text registered for a hash stays.
  void registerStringHash(StringHash hash, std::string_view text);
  /// The text of a hash, empty if it was never registered.
  std::string getStringByHash(StringHash hash) const;

private:
  std::string_view keep(std::string_view text);

  std::unordered_map<StringHash, std::string_view> mTexts;
  // The texts, one behind the other: there are as many as triggers.
  std::vector<std::unique_ptr<char[]>> mChunks;
  char* mNext = nullptr;
  std::size_t mLeft = 0;
};

}
