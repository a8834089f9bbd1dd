#include "game_plugin/scenario/records/RecordArena.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace script {

void* RecordArena::allocate(std::size_t size, std::size_t alignment) {
  constexpr std::size_t CHUNK_SIZE = 64 * 1024;
  // Kept reachable and never destroyed: records refer to each other past static destruction.
  static auto& chunks = *new std::vector<std::unique_ptr<std::byte[]>>;
  static std::byte* next = nullptr;
  static std::size_t left = 0;

  void* place = next;
  if (!next || !std::align(alignment, size, place, left)) {
    const std::size_t chunkSize = std::max(CHUNK_SIZE, size + alignment);
    chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(chunkSize));
    place = chunks.back().get();
    left = chunkSize;
    std::align(alignment, size, place, left);
  }
  next = static_cast<std::byte*>(place) + size;
  left -= size;
  return place;
}

std::string_view RecordArena::store(std::string_view first, std::string_view second, std::string_view third) {
  const std::size_t size = first.size() + second.size() + third.size();
  char* text = static_cast<char*>(allocate(size, 1));
  char* at = text;
  for (const std::string_view part : {first, second, third})
    at = std::copy(part.begin(), part.end(), at);
  return {text, size};
}

}
