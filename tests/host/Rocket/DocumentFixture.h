#pragma once
#include "Rocket/Core.h"
#include "Rocket/Core/SystemInterface.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

/// Documents without a host: warnings and faults are kept, files are texts.
class DocumentTest : public testing::Test, protected Rocket::Core::SystemInterface {
protected:
  void SetUp() override { Rocket::Core::SetSystemInterface(this); }
  void TearDown() override {
    document.reset();
    Rocket::Core::SetSystemInterface(nullptr);
  }

  void LogWarning(const Rocket::Core::String& message) override { warnings.push_back(message); }
  bool LoadFile(const Rocket::Core::String& path, Rocket::Core::String& text) override {
    const auto found = files.find(path);
    if (found == files.end()) return false;
    text = found->second;
    return true;
  }
  void CallGuarded(const std::function<void()>& call, const Rocket::Core::String& source) override {
    try {
      call();
    } catch (const std::exception& fault) {
      warnings.push_back(source + ": " + fault.what());
    }
  }

  /// A shown document.
  Rocket::Core::ElementDocument& read(const std::string& rml) {
    document = Rocket::Core::ElementDocument::Read(rml, "gui/test.rml");
    if (!document) throw std::runtime_error(warnings.back());
    document->SetShown(true);
    return *document;
  }
  Rocket::Core::Element& element(const std::string& id) {
    Rocket::Core::Element* found = document->GetElementById(id);
    if (!found) throw std::runtime_error("no element " + id);
    return *found;
  }

  std::shared_ptr<Rocket::Core::ElementDocument> document;
  std::vector<std::string> warnings;
  std::map<std::string, std::string> files;
};
