#pragma once
#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// The program's calls to the operating system; those that keep scripts from writing stand in WriteLimit.h.
namespace tidemark::platform {

/// Absolute path of the running program.
std::string executablePath();
/// Loads a library. Throws std::runtime_error with the system's words.
void* loadLibrary(const std::string& library);
/// Gives it back. What it handed out is of no more use.
void unloadLibrary(void* handle);
/// A symbol of a library that is loaded; null if the library isn't loaded or lacks it.
void* findSymbol(const std::string& library, const std::string& symbol);
/// A new, empty folder for temporary files that nobody else uses. Throws std::system_error.
std::string makeTemporaryDirectory();
/// Whether results, or messages, are read by a person.
bool outputIsTerminal();
bool errorsAreTerminal();
/// From now on the first request to end the program, Ctrl-C or that of a build server, is only noted, so that the
/// program can come to an orderly end; the second ends it at once.
void catchInterrupts();
bool isInterrupted();

/// How a child process has ended.
struct ExitStatus {
  int code = 0;           ///< exit code, if it wasn't killed
  int signal = 0;         ///< 0: it ended by itself
  std::string signalName; ///< "SIGSEGV"
};

/// From what the system tells of a process that has ended.
ExitStatus toExitStatus(int status);

/// Programs that run beside this one. They end with this one, however it ends.
class ChildProcess {
public:
  /// Starts the program; both its outputs go into that file, and it reads nothing. Throws std::system_error.
  static ChildProcess start(const std::vector<std::string>& command, const std::string& outputFile);
  /// Nothing while it runs.
  std::optional<ExitStatus> poll();
  /// Ends it and everything that it started, at once.
  void kill();

private:
  explicit ChildProcess(int process) : mProcess(process) {}
  int mProcess;
};

}
