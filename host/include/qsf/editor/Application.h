#pragma once
#include "qsf/base/UniqueInstance.h"
#include "qsf/editor/base/Application.h"
#include "qsf/selection/SelectionManagerTemplate.h"

#include <cstdint>

namespace qsf::editor {

/// What is selected in the editor's map view.
class QSF_API EntitySelectionManager : public SelectionManagerTemplate<std::uint64_t> {};

/// The layer that the editor works on.
class QSF_API LayerSelectionManager : public SelectionManagerTemplate<std::uint32_t> {
public:
  /// The lowest id if several are selected, the base layer's if none is.
  std::uint32_t getSelectedId() const { return getSelectionSize() == 0 ? 0 : *getSelectedIdSet().begin(); }
};

/// The editor's selections by kind.
class QSF_API SelectionSystem {
public:
  EntitySelectionManager& getEntitySelectionManager() { return mEntitySelectionManager; }
  LayerSelectionManager& getLayerSelectionManager() { return mLayerSelectionManager; }
  void clear() {
    mEntitySelectionManager.clearSelection();
    mLayerSelectionManager.clearSelection();
  }

private:
  EntitySelectionManager mEntitySelectionManager;
  LayerSelectionManager mLayerSelectionManager;
};

/// The map editor. Exists while the host runs as an editor, and only then.
class QSF_API Application : public base::Application, public UniqueInstanceTarget<Application> {
public:
  SelectionSystem& getSelectionSystem() { return mSelectionSystem; }

private:
  SelectionSystem mSelectionSystem;
};

}
