#pragma once
#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"

#include <string>

namespace script {

/// The hash of a name, whose text the host remembers: it can then tell what an action was given, and speak of a class
/// that doesn't exist by the name that the script wrote.
inline qsf::StringHash rememberedHash(const std::string& name) {
  const qsf::StringHash hash(name);
  if (const qsf::Qsf* host = qsf::Qsf::instance()) host->getStringHashManager().registerStringHash(hash, name);
  return hash;
}

}
