#pragma once
#include "qsf/Export.h"
#include "qsf/base/UniqueInstance.h"

#include <string>
#include <vector>

namespace qsf {

/// Where files may be written on behalf of scripts. The game lets them write anywhere, and so does a host that nobody
/// limits; a program that plays what others wrote sets a limit. Whoever writes for a script asks first. Made and owned
/// by Qsf.
class QSF_API WritePermission : public UniqueInstanceTarget<WritePermission> {
public:
  /// From now on files may be written below these folders only; without any, nowhere. Each refusal ends with `advice`.
  /// Paths are resolved now, links included. Throws std::filesystem::filesystem_error if one can't be.
  void limitTo(const std::vector<std::string>& folders, std::string advice);

  /// Where a file of that path would come to lie: absolute, without links. A relative path counts from the working
  /// directory. Throws std::runtime_error, with the reason and without the path, if the path can't be resolved or
  /// nothing may be written there.
  std::string require(const std::string& path) const;

private:
  bool mLimited = false;
  std::vector<std::string> mFolders;
  std::string mAdvice;
};

}
