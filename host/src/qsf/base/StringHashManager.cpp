#include "qsf/base/StringHashManager.h"

#include <algorithm>

namespace qsf {

void StringHashManager::registerStringHash(StringHash hash, std::string_view text) {
  const auto [place, isNew] = mTexts.try_emplace(hash);
  if (isNew) place->second = keep(text);
}

std::string StringHashManager::getStringByHash(StringHash hash) const {
  const auto found = mTexts.find(hash);
  return found == mTexts.end() ? std::string() : std::string(found->second);
}

std::string_view StringHashManager::keep(std::string_view text) {
  constexpr std::size_t CHUNK_SIZE = 16 * 1024;
  if (text.size() > mLeft) {
    mLeft = std::max(CHUNK_SIZE, text.size());
    mChunks.push_back(std::make_unique_for_overwrite<char[]>(mLeft));
    mNext = mChunks.back().get();
  }
  const char* kept = mNext;
  mNext = std::copy(text.begin(), text.end(), mNext);
  mLeft -= text.size();
  return {kept, text.size()};
}

}
