#include "qsf/game/EventTagComponent.h"

#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>

namespace qsf::game {

static const DeclaredClass<EventTagComponent> declared;

void EventTagComponent::declareCamp() {
  camp::Class::declare<EventTagComponent>("qsf::game::EventTagComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Tags", &EventTagComponent::mTags);
}

bool EventTagComponent::hasTag(const std::string& tag, bool partOfTag) const {
  return std::ranges::any_of(
      mTags, [&](const std::string& own) { return partOfTag ? own.find(tag) != std::string::npos : own == tag; });
}

}
