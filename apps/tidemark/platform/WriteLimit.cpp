#include "apps/tidemark/platform/WriteLimit.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <exception>
#include <system_error>

namespace tidemark::platform {

namespace {

constexpr std::size_t STACK_SIZE = 16 * 1024 * 1024; // as much as a main thread has, and more than trees need

constexpr std::uint64_t WRITING = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                  LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                                  LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                                  LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                                  LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
// Later kernels know more, and the headers of Debian 12 don't name all of it.
constexpr std::uint64_t REFER = 1ULL << 13;    // links and renames between folders, from version 2 on
constexpr std::uint64_t TRUNCATE = 1ULL << 14; // from version 3 on

[[noreturn]] void throwError(int code, const std::string& what) {
  throw std::system_error(code, std::generic_category(), what);
}

/// 0 without Landlock.
long landlockVersion() {
  const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  return version < 0 ? 0 : version;
}

class Descriptor {
public:
  Descriptor(int descriptor, const std::string& what) : mDescriptor(descriptor) {
    if (descriptor < 0) throwError(errno, what);
  }
  ~Descriptor() { ::close(mDescriptor); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return mDescriptor; }

private:
  int mDescriptor;
};

/// Limits the thread that calls, and those that it starts, for good.
void limitThisThread(const std::vector<std::string>& folders) {
  const long version = landlockVersion();
  if (version == 0) return;
  landlock_ruleset_attr handled{};
  handled.handled_access_fs = WRITING | (version >= 2 ? REFER : 0) | (version >= 3 ? TRUNCATE : 0);
  const Descriptor rules(static_cast<int>(::syscall(SYS_landlock_create_ruleset, &handled, sizeof handled, 0)),
                         "Landlock");
  for (const std::string& folder : folders) {
    const Descriptor opened(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC), folder);
    landlock_path_beneath_attr rule{};
    rule.allowed_access = handled.handled_access_fs;
    rule.parent_fd = opened.get();
    if (::syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
      throwError(errno, folder);
  }
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::syscall(SYS_landlock_restrict_self, rules.get(), 0) != 0)
    throwError(errno, "Landlock");
}

struct LimitedCall {
  const std::vector<std::string>& folders;
  const std::function<void()>& call;
  std::exception_ptr thrown;
};

void* runLimited(void* argument) {
  auto& limited = *static_cast<LimitedCall*>(argument);
  try {
    limitThisThread(limited.folders);
    limited.call();
  } catch (...) {
    limited.thrown = std::current_exception();
  }
  return nullptr;
}

}

bool canLimitWrites() { return landlockVersion() > 0; }

void callWithWriteLimit(const std::vector<std::string>& folders, const std::function<void()>& call) {
  LimitedCall limited{folders, call, nullptr};
  pthread_attr_t attributes;
  ::pthread_attr_init(&attributes);
  ::pthread_attr_setstacksize(&attributes, STACK_SIZE);
  pthread_t thread;
  const int fault = ::pthread_create(&thread, &attributes, runLimited, &limited);
  ::pthread_attr_destroy(&attributes);
  if (fault != 0) throwError(fault, "no thread can be started");
  ::pthread_join(thread, nullptr);
  if (limited.thrown) std::rethrow_exception(limited.thrown);
}

}
