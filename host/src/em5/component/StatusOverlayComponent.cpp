#include "em5/component/StatusOverlayComponent.h"

#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

static const qsf::DeclaredClass<StatusOverlayComponent> declared;

void StatusOverlayComponent::declareCamp() {
  camp::Class::declare<StatusOverlayComponent>("em5::StatusOverlayComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>();
}

void StatusOverlayComponent::showIcon(qsf::Entity& entity, int icon, bool visible) {
  if (icon < 0 || icon >= STATUS_ICON_COUNT) return;
  if (visible)
    entity.getOrCreateComponent<StatusOverlayComponent>()->mIcons.insert(icon);
  else if (auto* overlay = entity.getComponent<StatusOverlayComponent>())
    overlay->mIcons.erase(icon);
}

void StatusOverlayComponent::showBarOverlay(qsf::Entity& entity, int bar, float progress) {
  if (bar < 0 || bar >= BAR_COUNT) return;
  entity.getOrCreateComponent<StatusOverlayComponent>()->mBars[bar] = progress;
}

void StatusOverlayComponent::hideBarOverlay(qsf::Entity& entity, int bar) {
  if (auto* overlay = entity.getComponent<StatusOverlayComponent>()) overlay->mBars.erase(bar);
}

std::optional<float> StatusOverlayComponent::getBarProgress(int bar) const {
  const auto found = mBars.find(bar);
  return found == mBars.end() ? std::nullopt : std::optional<float>(found->second);
}

}
