#include "apps/tidemark/platform/Twin.h"

#include <fcntl.h>
#include <signal.h>
#include <string.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <system_error>
#include <utility>

namespace tidemark::platform {

namespace {

/// Our ends of the roads to twins: a later twin must not hold them open.
std::vector<int>& openRoads() {
  static std::vector<int> roads;
  return roads;
}

bool writeAll(int descriptor, const std::uint8_t* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t done = ::send(descriptor, bytes, size, MSG_NOSIGNAL);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    bytes += done;
    size -= static_cast<std::size_t>(done);
  }
  return true;
}

bool readAll(int descriptor, std::uint8_t* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t done = ::recv(descriptor, bytes, size, 0);
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    bytes += done;
    size -= static_cast<std::size_t>(done);
  }
  return true;
}

int runBody(const std::function<int(BlockSocket&)>& body, int descriptor) {
  BlockSocket socket(descriptor);
  try {
    return body(socket);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}

void redirectOutput(const std::string& file) {
  if (file.empty()) return;
  const int output = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (output < 0) return;
  ::dup2(output, STDOUT_FILENO);
  ::dup2(output, STDERR_FILENO);
  ::close(output);
}

}

BlockSocket& BlockSocket::operator=(BlockSocket&& other) noexcept {
  if (this != &other) {
    close();
    mDescriptor = std::exchange(other.mDescriptor, -1);
  }
  return *this;
}

void BlockSocket::close() {
  if (mDescriptor < 0) return;
  std::erase(openRoads(), mDescriptor);
  ::close(std::exchange(mDescriptor, -1));
}

bool BlockSocket::write(const std::vector<std::uint8_t>& block) {
  const std::uint64_t size = block.size();
  return mDescriptor >= 0 && writeAll(mDescriptor, reinterpret_cast<const std::uint8_t*>(&size), sizeof(size)) &&
         writeAll(mDescriptor, block.data(), block.size());
}

std::optional<std::vector<std::uint8_t>> BlockSocket::read() {
  std::uint64_t size = 0;
  if (mDescriptor < 0 || !readAll(mDescriptor, reinterpret_cast<std::uint8_t*>(&size), sizeof(size)))
    return std::nullopt;
  std::vector<std::uint8_t> block(size);
  if (!readAll(mDescriptor, block.data(), block.size())) return std::nullopt;
  return block;
}

Twin Twin::start(const std::string& outputFile, const std::function<int(BlockSocket&)>& body) {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
    throw std::system_error(errno, std::generic_category(), "no road to another process");
  std::fflush(nullptr); // or the twin would write it a second time
  const pid_t parent = ::getpid();
  const int process = ::fork();
  if (process == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) ::_exit(1);
    for (const int road : openRoads())
      ::close(road);
    openRoads().clear();
    ::close(ends[0]);
    redirectOutput(outputFile);
    const int code = runBody(body, ends[1]);
    std::fflush(nullptr);
    ::_exit(code); // what the other process owns is not torn down here
  }
  ::close(ends[1]);
  if (process < 0) {
    ::close(ends[0]);
    throw std::system_error(errno, std::generic_category(), "no other process");
  }
  openRoads().push_back(ends[0]);
  return Twin(process, BlockSocket(ends[0]));
}

ExitStatus Twin::wait() {
  int status = 0;
  while (::waitpid(mProcess, &status, 0) < 0 && errno == EINTR) {
  }
  return toExitStatus(status);
}

void Twin::kill() { ::kill(mProcess, SIGKILL); }

}
