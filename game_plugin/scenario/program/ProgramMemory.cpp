#include "game_plugin/scenario/program/ProgramMemory.h"

#include <algorithm>

namespace script {

void* ProgramMemory::allocateInNewChunk(std::size_t size, std::size_t alignment) {
  constexpr std::size_t FURTHER_CHUNKS = 64 * 1024;
  mChunk = std::max(mNextChunk, size);
  mNextChunk = FURTHER_CHUNKS;
  mUsed = size;
  return mResources.emplace_back(mChunk).allocate(size, alignment);
}

std::string_view ProgramMemory::store(std::string_view first, std::string_view second, std::string_view third) {
  const std::size_t size = first.size() + second.size() + third.size();
  char* text = static_cast<char*>(allocate(size, 1));
  char* at = text;
  for (const std::string_view part : {first, second, third})
    at = std::copy(part.begin(), part.end(), at);
  return {text, size};
}

}
