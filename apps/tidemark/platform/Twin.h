#pragma once
#include "apps/tidemark/platform/Platform.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tidemark::platform {

/// One end of a road between two processes, over which whole blocks of bytes go. Closed when it goes.
class BlockSocket {
public:
  explicit BlockSocket(int descriptor) : mDescriptor(descriptor) {}
  ~BlockSocket() { close(); }
  BlockSocket(BlockSocket&& other) noexcept : mDescriptor(other.mDescriptor) { other.mDescriptor = -1; }
  BlockSocket& operator=(BlockSocket&& other) noexcept;

  /// False if the other end is gone.
  bool write(const std::vector<std::uint8_t>& block);
  /// Waits for the next block; nothing if the other end is gone.
  std::optional<std::vector<std::uint8_t>> read();
  void close();

private:
  int mDescriptor;
};

/// A copy of this process that goes on with a function of its own. It ends with this one, however this one ends.
/// Processes with threads have no twins.
class Twin {
public:
  /// Both outputs of the twin go into that file, or where ours go if it is empty. The function's result is the twin's
  /// exit code; what it throws is written to its output, and the code is 1. Throws std::system_error.
  static Twin start(const std::string& outputFile, const std::function<int(BlockSocket&)>& body);

  BlockSocket& socket() { return mSocket; }
  /// Waits for its end.
  ExitStatus wait();
  void kill();

private:
  Twin(int process, BlockSocket socket) : mProcess(process), mSocket(std::move(socket)) {}
  int mProcess;
  BlockSocket mSocket;
};

}
