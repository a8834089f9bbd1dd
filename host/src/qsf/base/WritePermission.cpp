#include "qsf/base/WritePermission.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace qsf {

namespace {

namespace fs = std::filesystem;

bool isBelow(const fs::path& path, const fs::path& folder) {
  // Part by part: "/a/bc" is not below "/a/b".
  return std::mismatch(path.begin(), path.end(), folder.begin(), folder.end()).second == folder.end() && path != folder;
}

}

void WritePermission::limitTo(const std::vector<std::string>& folders, std::string advice) {
  std::vector<std::string> resolved;
  for (const std::string& folder : folders)
    resolved.push_back(fs::canonical(folder).string());
  mFolders = std::move(resolved);
  mAdvice = std::move(advice);
  mLimited = true;
}

std::string WritePermission::require(const std::string& path) const {
  std::error_code fault;
  const fs::path resolved = fs::weakly_canonical(fs::absolute(path), fault);
  if (fault) throw std::runtime_error(fault.message());
  const bool allowed = !mLimited || std::any_of(mFolders.begin(), mFolders.end(),
                                                [&](const std::string& folder) { return isBelow(resolved, folder); });
  if (!allowed) throw std::runtime_error("nothing may be written to " + resolved.string() + "; " + mAdvice);
  return resolved.string();
}

}
