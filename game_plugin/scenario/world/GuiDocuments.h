#pragma once
#include <string>
#include <vector>

namespace qsf {
class GuiDocument;
}

namespace script {

/// The RML documents that scripts have loaded, as conditions see them: whoever manages the documents is it.
class GuiDocuments {
public:
  /// False also for an id that no document has.
  virtual bool isVisible(const std::string& uniqueId) const = 0;

  /// Those of that id, in the order of their loading.
  virtual std::vector<qsf::GuiDocument*> find(const std::string& /*uniqueId*/) const { return {}; }

  /// Null while nobody manages documents.
  static const GuiDocuments* get();
  static void set(const GuiDocuments* documents);

protected:
  ~GuiDocuments() = default;
};

/// The name by which tools know one of the module's own documents: "basic", "actionbar", "debugger", "audiotracker". A
/// member of the document.
class NamedDocument {
public:
  NamedDocument(std::string name, qsf::GuiDocument& document);
  ~NamedDocument();
  NamedDocument(const NamedDocument&) = delete;
  NamedDocument& operator=(const NamedDocument&) = delete;

  /// The newest of that name; null if there is none.
  static qsf::GuiDocument* find(const std::string& name);

private:
  std::string mName;
  qsf::GuiDocument& mDocument;
};

}
