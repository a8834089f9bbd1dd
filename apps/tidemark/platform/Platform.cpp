#include "apps/tidemark/platform/Platform.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <string.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace tidemark::platform {

namespace {

volatile sig_atomic_t interrupted = 0;

void noteInterrupt(int) { interrupted = 1; }

[[noreturn]] void throwLastError(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// Runs in the child between fork and exec: only calls that are safe there.
[[noreturn]] void runChild(char* const* arguments, int output, int input) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  ::dup2(input, STDIN_FILENO);
  ::dup2(output, STDOUT_FILENO);
  ::dup2(output, STDERR_FILENO);
  ::execv(arguments[0], arguments);
  ::_exit(127);
}

}

std::string executablePath() { return std::filesystem::read_symlink("/proc/self/exe").string(); }

void* loadLibrary(const std::string& library) {
  void* handle = ::dlopen(library.c_str(), RTLD_NOW);
  if (!handle) throw std::runtime_error(::dlerror());
  return handle;
}

void unloadLibrary(void* handle) { ::dlclose(handle); }

void* findSymbol(const std::string& library, const std::string& symbol) {
  void* handle = ::dlopen(library.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (!handle) return nullptr;
  void* address = ::dlsym(handle, symbol.c_str());
  ::dlclose(handle); // gives back what dlopen counted; whoever loaded the library keeps it
  return address;
}

std::string makeTemporaryDirectory() {
  std::string pattern = (std::filesystem::temp_directory_path() / "tidemark-XXXXXX").string();
  if (!::mkdtemp(pattern.data())) throwLastError("no temporary folder " + pattern);
  return pattern;
}

bool outputIsTerminal() { return ::isatty(STDOUT_FILENO) != 0; }

bool errorsAreTerminal() { return ::isatty(STDERR_FILENO) != 0; }

void catchInterrupts() {
  struct sigaction action = {};
  action.sa_handler = noteInterrupt;
  action.sa_flags = static_cast<int>(SA_RESETHAND); // asked a second time, the program ends at once
  ::sigaction(SIGINT, &action, nullptr);
  ::sigaction(SIGTERM, &action, nullptr);
}

bool isInterrupted() { return interrupted != 0; }

ChildProcess ChildProcess::start(const std::vector<std::string>& command, const std::string& outputFile) {
  std::vector<char*> arguments;
  for (const std::string& argument : command)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const int output = ::open(outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (output < 0) throwLastError(outputFile);
  const int input = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  const int process = ::fork();
  if (process == 0) runChild(arguments.data(), output, input);
  ::close(output);
  if (input >= 0) ::close(input);
  if (process < 0) throwLastError(command.front());
  return ChildProcess(process);
}

std::optional<ExitStatus> ChildProcess::poll() {
  int status = 0;
  if (::waitpid(mProcess, &status, WNOHANG) == 0) return std::nullopt;
  return toExitStatus(status);
}

ExitStatus toExitStatus(int status) {
  ExitStatus result;
  if (WIFSIGNALED(status)) {
    result.signal = WTERMSIG(status);
    const char* name = ::sigabbrev_np(result.signal);
    result.signalName = name ? std::string("SIG") + name : "signal " + std::to_string(result.signal);
  } else {
    result.code = WEXITSTATUS(status);
  }
  return result;
}

void ChildProcess::kill() {
  if (::kill(-mProcess, SIGKILL) != 0) ::kill(mProcess, SIGKILL);
  int status = 0;
  ::waitpid(mProcess, &status, 0);
}

}
