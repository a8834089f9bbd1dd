#pragma once
#include "qsf/base/StringHash.h"

#include <unordered_map>

namespace qsf {

/// Remembers which text a hash came from, so that tools and logs can show it. Owned by Qsf.
class QSF_API StringHashManager {
public:
  /// Remembers the pair. The first text registered for a hash stays.
  void registerStringHash(StringHash hash, std::string_view text);
  /// The text of a hash, empty if it was never registered.
  std::string getStringByHash(StringHash hash) const;

private:
  std::unordered_map<StringHash, std::string> mTexts;
};

}
