#include "game_plugin/scenario/world/GuiDocuments.h"

#include <algorithm>

namespace script {

namespace {

const GuiDocuments* theDocuments = nullptr;

std::vector<const NamedDocument*>& namedDocuments() {
  static std::vector<const NamedDocument*> all;
  return all;
}

}

const GuiDocuments* GuiDocuments::get() { return theDocuments; }

void GuiDocuments::set(const GuiDocuments* documents) { theDocuments = documents; }

NamedDocument::NamedDocument(std::string name, qsf::GuiDocument& document)
    : mName(std::move(name)), mDocument(document) {
  namedDocuments().push_back(this);
}

NamedDocument::~NamedDocument() { std::erase(namedDocuments(), this); }

qsf::GuiDocument* NamedDocument::find(const std::string& name) {
  const auto& all = namedDocuments();
  const auto found = std::find_if(all.rbegin(), all.rend(), [&](const auto* named) { return named->mName == name; });
  return found == all.rend() ? nullptr : &(*found)->mDocument;
}

}
