#include "game_plugin/plugin/ModuleFolder.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <cstdio>

namespace script {

#ifdef _WIN32

std::filesystem::path moduleFolder() {
  HMODULE module = nullptr;
  constexpr DWORD BY_ADDRESS = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!GetModuleHandleExA(BY_ADDRESS, reinterpret_cast<LPCSTR>(&moduleFolder), &module)) {
    std::fprintf(stderr, "GetModuleHandle returned %lu\n", GetLastError());
    return {};
  }
  char file[1000] = {};
  GetModuleFileNameA(module, file, sizeof(file));
  return std::filesystem::path(file).parent_path();
}

#else

std::filesystem::path moduleFolder() {
  Dl_info info{};
  if (!::dladdr(reinterpret_cast<const void*>(&moduleFolder), &info) || !info.dli_fname) {
    std::fprintf(stderr, "dladdr knows no library of the module\n");
    return {};
  }
  return std::filesystem::path(info.dli_fname).parent_path();
}

#endif

}
