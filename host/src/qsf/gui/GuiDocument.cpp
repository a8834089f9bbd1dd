#include "qsf/gui/GuiDocument.h"

#include "qsf/gui/GuiContext.h"

#include <algorithm>

namespace qsf {

GuiDocument::GuiDocument(GuiContext& context, std::string name) : mContext(context), mName(std::move(name)) {
  mContext.mDocuments.push_back(this);
}

GuiDocument::~GuiDocument() {
  auto& documents = mContext.mDocuments;
  documents.erase(std::remove(documents.begin(), documents.end(), this), documents.end());
}

}
