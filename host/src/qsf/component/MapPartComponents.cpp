#include "qsf/component/MapPartComponents.h"

#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

template <class T> camp::ClassBuilder<T> declare(const char* name) {
  camp::ClassBuilder<T> builder = camp::Class::declare<T>(name);
  builder.template base<Component>().template constructor1<Prototype*>();
  return builder;
}

}

static const DeclaredClass<TerrainComponent> terrainComponentClass;

void TerrainComponent::declareCamp() { declare<TerrainComponent>("qsf::TerrainComponent"); }

static const DeclaredClass<StreetCrossingComponent> streetCrossingComponentClass;

void StreetCrossingComponent::declareCamp() { declare<StreetCrossingComponent>("qsf::StreetCrossingComponent"); }

static const DeclaredClass<StreetSectionComponent> streetSectionComponentClass;

void StreetSectionComponent::declareCamp() { declare<StreetSectionComponent>("qsf::StreetSectionComponent"); }

static const DeclaredClass<LightComponent> lightComponentClass;

void LightComponent::declareCamp() {
  declare<LightComponent>("qsf::LightComponent")
      .property("Color", &LightComponent::getColor, &LightComponent::setColor)
      .property("Intensity", &LightComponent::getIntensity, &LightComponent::setIntensity)
      .property("Radius", &LightComponent::getRadius, &LightComponent::setRadius);
}

}
