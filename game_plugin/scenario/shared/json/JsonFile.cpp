#include "game_plugin/scenario/shared/json/JsonFile.h"

#include "qsf/base/WritePermission.h"

#include <boost/property_tree/json_parser.hpp>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace script {

namespace {

namespace fs = std::filesystem;
using boost::property_tree::ptree;

std::string systemReason(int code) { return std::error_code(code ? code : EIO, std::generic_category()).message(); }

/// The whole file; faults are told without its name.
std::string readText(const std::string& file) {
  std::error_code fault;
  const fs::file_status status = fs::status(file, fault);
  if (!fs::exists(status)) throw std::runtime_error(fault ? fault.message() : systemReason(ENOENT));
  // A pipe or a device would block the tick, or never end.
  if (!fs::is_regular_file(status)) throw std::runtime_error("this is no file");
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(systemReason(errno));
  std::string text;
  // What a file's size is said to be need not be true.
  for (std::array<char, 65536> part; stream.read(part.data(), part.size()) || stream.gcount() > 0;) {
    text.append(part.data(), static_cast<std::size_t>(stream.gcount()));
    if (text.size() > MAXIMUM_JSON_BYTES)
      throw std::runtime_error("it is larger than " + std::to_string(MAXIMUM_JSON_BYTES) + " bytes");
  }
  if (stream.bad()) throw std::runtime_error(systemReason(errno));
  return text;
}

ptree parse(const std::string& text) {
  const JsonExtent extent = measureJson(text);
  if (extent.depth > MAXIMUM_JSON_DEPTH)
    throw std::runtime_error("it is nested deeper than " + std::to_string(MAXIMUM_JSON_DEPTH) + " levels");
  if (extent.values > MAXIMUM_JSON_VALUES)
    throw std::runtime_error("it holds more than " + std::to_string(MAXIMUM_JSON_VALUES) + " values");
  std::istringstream stream(text);
  ptree tree;
  try {
    boost::property_tree::read_json(stream, tree);
  } catch (const boost::property_tree::json_parser_error& fault) {
    throw std::runtime_error("line " + std::to_string(fault.line()) + ": " + fault.message());
  }
  return tree;
}

std::string print(const ptree& tree) {
  std::ostringstream stream;
  try {
    boost::property_tree::write_json(stream, tree, true);
  } catch (const boost::property_tree::json_parser_error& fault) {
    throw std::runtime_error(fault.message());
  }
  return stream.str();
}

/// A file of its own in the folder, which goes with this object unless it was given its name.
class FileBeside {
public:
  explicit FileBeside(const fs::path& folder) {
    constexpr int ATTEMPTS = 100; // a name is taken only if an earlier program was ended while it wrote
    for (int i = 1; i <= ATTEMPTS && !mFile; ++i) {
      mPath = folder / (".tidemark-json-" + std::to_string(i));
      errno = 0;
      mFile.reset(std::fopen(mPath.string().c_str(), "wbx"));
      if (!mFile && errno != EEXIST) break;
    }
    if (!mFile) throw std::runtime_error(systemReason(errno));
  }
  ~FileBeside() {
    if (mPath.empty()) return;
    mFile.reset();
    std::error_code ignored;
    fs::remove(mPath, ignored);
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  void write(const std::string& text) {
    errno = 0;
    const bool written = std::fwrite(text.data(), 1, text.size(), mFile.get()) == text.size();
    if (!written || std::fclose(mFile.release()) != 0) throw std::runtime_error(systemReason(errno));
  }
  /// Takes that path, with the rights of the file that it replaces.
  void rename(const fs::path& target) {
    std::error_code fault;
    const fs::file_status old = fs::status(target, fault);
    if (fs::exists(old)) fs::permissions(mPath, old.permissions(), fault);
    fs::rename(mPath, target, fault);
    if (fault) throw std::runtime_error(fault.message());
    mPath.clear();
  }

private:
  struct Close {
    void operator()(std::FILE* file) const { (void)std::fclose(file); }
  };
  fs::path mPath;
  std::unique_ptr<std::FILE, Close> mFile;
};

void replaceFile(const fs::path& target, const std::string& text) {
  std::error_code fault;
  const fs::file_status old = fs::status(target, fault);
  // Renaming would put a file in the place of a device.
  if (fs::exists(old) && !fs::is_regular_file(old)) throw std::runtime_error("this is no file");
  errno = 0;
  // A file that may not be written is not replaced either.
  if (fs::exists(old) && !std::fstream(target, std::ios::in | std::ios::out | std::ios::binary))
    throw std::runtime_error(systemReason(errno));
  FileBeside file(target.parent_path());
  file.write(text);
  file.rename(target);
}

/// Makes the call; what it throws gets the file's name in front.
template <class Call> auto aboutFile(const std::string& file, const char* what, Call&& call) {
  try {
    return call();
  } catch (const std::runtime_error& fault) {
    throw std::runtime_error(file + " can't be " + what + ": " + fault.what());
  }
}

}

JsonExtent measureJson(const std::string& text) {
  JsonExtent extent;
  std::size_t depth = 0;
  bool inText = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (inText) {
      if (character == '\\')
        ++i;
      else if (character == '"')
        inText = false;
    } else if (character == '"') {
      inText = true;
    } else if (character == '[' || character == '{') {
      extent.depth = std::max(extent.depth, ++depth);
      ++extent.values;
    } else if (character == ',') {
      ++extent.values;
    } else if ((character == ']' || character == '}') && depth > 0) {
      --depth;
    }
  }
  return extent;
}

ptree readJsonFile(const std::string& file) {
  return aboutFile(file, "read", [&] { return parse(readText(file)); });
}

void writeJsonFile(const std::string& file, const ptree& tree) {
  aboutFile(file, "written", [&] {
    if (file.empty()) throw std::runtime_error(systemReason(ENOENT));
    const qsf::UniqueInstance<qsf::WritePermission> permission;
    if (!permission) throw std::runtime_error("no host runs");
    // Links are followed first: it is the file behind them that is replaced.
    replaceFile(permission->require(file), print(tree));
  });
}

}
