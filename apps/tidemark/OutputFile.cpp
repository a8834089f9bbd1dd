#include "apps/tidemark/OutputFile.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

constexpr const char* STANDARD_OUTPUT = "-";

[[noreturn]] void fail(const std::string& option, const std::string& path) {
  throw std::runtime_error(
      fmt::format("{}: {} can't be written{}{}", option, path, errno ? ": " : "", errno ? std::strerror(errno) : ""));
}

}

OutputFile::OutputFile(std::string option, const std::string& path) : mOption(std::move(option)), mPath(path) {
  if (mPath.empty() || isStandardOutput()) return;
  mPath = fs::absolute(mPath).string();
  std::error_code ignored;
  const bool existed = fs::exists(mPath, ignored);
  errno = 0;
  if (!std::ofstream(mPath, std::ios::binary | std::ios::app)) fail(mOption, mPath);
  mMadeHere = !existed;
}

OutputFile::~OutputFile() {
  std::error_code ignored;
  if (mMadeHere) fs::remove(mPath, ignored);
}

bool OutputFile::isStandardOutput() const { return mPath == STANDARD_OUTPUT; }

void OutputFile::write(std::string_view text) {
  errno = 0;
  if (isStandardOutput()) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) fail(mOption, "standard output");
    return;
  }
  std::ofstream file(mPath, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!file.flush()) fail(mOption, mPath);
  mMadeHere = false;
}

}
