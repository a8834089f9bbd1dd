#pragma once
#include <string>

namespace qsf {

/// A shared library in memory. The only place where the host asks the operating system for one.
class DynamicLibrary {
public:
  /// Throws LoadError with the system's own reason.
  explicit DynamicLibrary(const std::string& path);
  /// Unloads the library unless it is kept.
  ~DynamicLibrary();
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;

  const std::string& getPath() const { return mPath; }
  /// Null if the library exports no such symbol.
  void* getSymbol(const std::string& name) const;
  /// Leaves the library in memory until the process ends.
  void keep() { mKeep = true; }

private:
  std::string mPath;
  void* mHandle;
  bool mKeep = false;
};

}
