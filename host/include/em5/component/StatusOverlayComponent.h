#pragma once
#include "em5/gui/StatusOverlay.h"
#include "qsf/component/Component.h"

#include <map>
#include <optional>
#include <set>

namespace em5 {

/// The icons and bars that the player sees over an entity. What shows stays until it is hidden. Numbers that no
/// icon or bar has, the counts of the enumerations among them, show nothing.
class QSF_API StatusOverlayComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::StatusOverlayComponent"};
  explicit StatusOverlayComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// These make the entity's component when there is something to show.
  static void showIcon(qsf::Entity& entity, int icon, bool visible);
  /// `progress` runs from 0 to 1.
  static void showBarOverlay(qsf::Entity& entity, int bar, float progress);
  static void hideBarOverlay(qsf::Entity& entity, int bar);

  bool isIconVisible(int icon) const { return mIcons.contains(icon); }
  const std::set<int>& getVisibleIcons() const { return mIcons; }
  /// None while the bar is hidden.
  std::optional<float> getBarProgress(int bar) const;
  const std::map<int, float>& getVisibleBars() const { return mBars; }

private:
  std::set<int> mIcons;
  std::map<int, float> mBars;
};

}
CAMP_TYPE_NONCOPYABLE(em5::StatusOverlayComponent)
