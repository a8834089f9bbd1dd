#include "qsf/component/MapPartComponents.h"

#include "qsf/reflection/CampTypes.h"

namespace qsf {

namespace {

template <class T> camp::ClassBuilder<T> declare(const char* name) {
  camp::ClassBuilder<T> builder = camp::Class::declare<T>(name);
  builder.template base<Component>().template constructor1<Prototype*>();
  return builder;
}

}

void TerrainComponent::declareCamp() { declare<TerrainComponent>("qsf::TerrainComponent"); }

void StreetCrossingComponent::declareCamp() { declare<StreetCrossingComponent>("qsf::StreetCrossingComponent"); }

void StreetSectionComponent::declareCamp() { declare<StreetSectionComponent>("qsf::StreetSectionComponent"); }

void LightComponent::declareCamp() {
  declare<LightComponent>("qsf::LightComponent")
      .property("Color", &LightComponent::getColor, &LightComponent::setColor)
      .property("Intensity", &LightComponent::getIntensity, &LightComponent::setIntensity)
      .property("Radius", &LightComponent::getRadius, &LightComponent::setRadius);
}

void ParticlesComponent::declareCamp() {
  declare<ParticlesComponent>("qsf::ParticlesComponent")
      .property("Particles", &ParticlesComponent::getParticles, &ParticlesComponent::setParticles)
      .property("Playing", &ParticlesComponent::isPlaying, &ParticlesComponent::setPlaying);
}

}
