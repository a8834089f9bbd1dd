#pragma once
#include "qsf/base/UniqueInstance.h"
#include "qsf/selection/SelectionManagerTemplate.h"

#include <cstdint>

namespace qsf::editor {

/// What is selected in the editor's map view.
class QSF_API EntitySelectionManager : public SelectionManagerTemplate<std::uint64_t> {};

/// The editor's selections by kind; only entities are selected here.
class QSF_API SelectionSystem {
public:
  EntitySelectionManager& getEntitySelectionManager() { return mEntitySelectionManager; }

private:
  EntitySelectionManager mEntitySelectionManager;
};

/// Exists while the host runs as an editor, and only then.
class QSF_API EditorApplication : public UniqueInstanceTarget<EditorApplication> {
public:
  SelectionSystem& getSelectionSystem() { return mSelectionSystem; }

private:
  SelectionSystem mSelectionSystem;
};

}
