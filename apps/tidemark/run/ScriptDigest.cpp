#include "apps/tidemark/run/ScriptDigest.h"

#include "apps/tidemark/text/Encoding.h"

#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tidemark::run {

namespace {

namespace fs = std::filesystem;

constexpr const char* SCRIPTS = "x64/tidemark";

/// What else lies there isn't read when a game starts.
bool isScriptFile(const fs::path& path) { return path.extension() == ".script" || path.extension() == ".json"; }

std::string digestFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file) throw std::runtime_error(fmt::format("{}: can't be read", path.string()));
  return boost::uuids::to_string(boost::uuids::name_generator_sha1(boost::uuids::ns::oid())(text));
}

}

ScriptDigest digestScripts(const std::vector<std::string>& projects) {
  ScriptDigest digest;
  for (const std::string& project : projects) {
    const fs::path folder = fs::weakly_canonical(project);
    if (!fs::is_directory(folder / SCRIPTS)) continue;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder / SCRIPTS))
      if (entry.is_regular_file() && isScriptFile(entry.path()))
        digest[toUtf8((folder.filename() / entry.path().lexically_relative(folder)).generic_string())] =
            digestFile(entry.path());
  }
  return digest;
}

std::string describeDifference(const ScriptDigest& ours, const ScriptDigest& theirs) {
  std::string text;
  const auto add = [&text](const std::string& file, const char* what) {
    text += fmt::format("{}{} {}", text.empty() ? "" : ", ", file, what);
  };
  for (const auto& [file, digest] : ours) {
    const auto other = theirs.find(file);
    if (other == theirs.end())
      add(file, "is on the host only");
    else if (other->second != digest)
      add(file, "differs");
  }
  for (const auto& [file, digest] : theirs)
    if (!ours.contains(file)) add(file, "is on the client only");
  return text;
}

std::string encodeDigest(const ScriptDigest& digest) { return nlohmann::json(digest).dump(); }

ScriptDigest decodeDigest(const std::string& text) { return nlohmann::json::parse(text).get<ScriptDigest>(); }

}
