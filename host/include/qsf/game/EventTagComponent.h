#pragma once
#include "qsf/component/Component.h"

#include <string>
#include <vector>

namespace qsf::game {

/// Marks an entity with words by which events find it. Property "Tags".
class QSF_API EventTagComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::EventTagComponent"};
  explicit EventTagComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::string>& getTags() const { return mTags; }
  /// Whether it has that tag; with `partOfTag` also one that merely contains the text.
  bool hasTag(const std::string& tag, bool partOfTag) const;

private:
  std::vector<std::string> mTags;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::EventTagComponent)
