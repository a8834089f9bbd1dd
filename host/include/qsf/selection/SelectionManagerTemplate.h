#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <set>

namespace qsf {

/// A set of selected ids. Ids are not tested for existence. Each operation that changes the set calls
/// onSelectionChanged once.
template <typename IdType> class QSF_API SelectionManagerTemplate {
public:
  using IdSet = std::set<IdType>;

  virtual ~SelectionManagerTemplate() = default;

  bool isIdSelected(IdType id) const { return mSelection.count(id) != 0; }
  /// Ascending.
  const IdSet& getSelectedIdSet() const { return mSelection; }
  std::size_t getSelectionSize() const { return mSelection.size(); }

  void clearSelection() { setSelection(IdSet()); }
  void setSelection(const IdSet& ids) {
    if (ids == mSelection) return;
    mSelection = ids;
    onSelectionChanged();
  }
  void addIdToSelection(IdType id) {
    if (mSelection.insert(id).second) onSelectionChanged();
  }
  void removeIdFromSelection(IdType id) {
    if (mSelection.erase(id)) onSelectionChanged();
  }

protected:
  virtual void onSelectionChanged() {}

private:
  IdSet mSelection;
};

}
