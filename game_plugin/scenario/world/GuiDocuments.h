#pragma once
#include <string>

namespace script {

/// The RML documents that scripts have loaded, as conditions see them: whoever manages the documents is it.
class GuiDocuments {
public:
  /// False also for an id that no document has.
  virtual bool isVisible(const std::string& uniqueId) const = 0;

  /// Null while nobody manages documents.
  static const GuiDocuments* get();
  static void set(const GuiDocuments* documents);

protected:
  ~GuiDocuments() = default;
};

}
