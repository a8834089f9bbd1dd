#include "qsf/plugin/DynamicLibrary.h"
#include "qsf/base/LoadError.h"

#include <dlfcn.h>

#include <filesystem>

namespace qsf {

DynamicLibrary::DynamicLibrary(const std::string& path) : mPath(path), mHandle(nullptr) {
  // A bare file name would be searched for in the system's folders; a plug-in is always one particular file.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) throw LoadError(path, "", "there is no such plug-in library");
  mPath = std::filesystem::absolute(path, error).lexically_normal().string();
  mHandle = dlopen(mPath.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!mHandle) {
    const char* reason = dlerror();
    throw LoadError(path, "", std::string("the plug-in library cannot be loaded: ") + (reason ? reason : "unknown"));
  }
}

DynamicLibrary::~DynamicLibrary() {
  if (mHandle && !mKeep) dlclose(mHandle);
}

void* DynamicLibrary::getSymbol(const std::string& name) const { return dlsym(mHandle, name.c_str()); }

}
