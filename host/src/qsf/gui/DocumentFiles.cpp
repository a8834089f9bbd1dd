#include "DocumentFiles.h"

#include "Rocket/Core/SystemInterface.h"
#include "qsf/Qsf.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"

#include <filesystem>
#include <fstream>

namespace qsf {

namespace {

constexpr std::uintmax_t MAXIMUM_FILE_SIZE = 4u << 20;

bool readFile(const std::filesystem::path& file, std::string& text) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return false;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error || size > MAXIMUM_FILE_SIZE) return false;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return false;
  text.resize(static_cast<std::size_t>(size));
  stream.read(text.data(), static_cast<std::streamsize>(size));
  text.resize(static_cast<std::size_t>(stream.gcount()));
  return !stream.bad(); // some files of the system look ordinary and can't be read
}

const BaseAsset* findAsset(const std::string& name) {
  if (!Qsf::instance()) return nullptr;
  const std::size_t ending = name.rfind('.');
  if (const BaseAsset* asset = AssetProxy(StringHash(name)).getAsset()) return asset;
  if (ending == std::string::npos || name.find('/', ending) != std::string::npos) return nullptr;
  const BaseAsset* asset = AssetProxy(StringHash(name.substr(0, ending))).getAsset();
  // An asset of that name but of another ending is another file.
  return asset && asset->getFile().ends_with(name.substr(ending)) ? asset : nullptr;
}

class DocumentSystem : public Rocket::Core::SystemInterface {
public:
  void LogWarning(const Rocket::Core::String& message) override { logMessage(LogSystem::WARNING, message); }
  bool LoadFile(const Rocket::Core::String& path, Rocket::Core::String& text) override {
    return readDocumentFile(path, text);
  }
  void CallGuarded(const std::function<void()>& call, const Rocket::Core::String& source) override {
    callGuarded(call, [&] { return std::string(source); });
  }
};

}

bool readDocumentFile(const std::string& path, std::string& text) {
  if (path.empty() || path.find('\0') != std::string::npos) return false;
  if (readFile(path, text)) return true;
  const BaseAsset* asset = findAsset(path);
  return asset && readFile(asset->getFile(), text);
}

void installDocumentSystem() {
  static DocumentSystem system;
  Rocket::Core::SetSystemInterface(&system);
}

}
