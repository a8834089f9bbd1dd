#include "qsf/base/StringHashManager.h"

namespace qsf {

void StringHashManager::registerStringHash(StringHash hash, std::string_view text) { mTexts.try_emplace(hash, text); }

std::string StringHashManager::getStringByHash(StringHash hash) const {
  const auto found = mTexts.find(hash);
  return found == mTexts.end() ? std::string() : found->second;
}

}
