#pragma once
#include "qsf/asset/AssetProxy.h"
#include "qsf/component/Component.h"

namespace qsf {

/// What an entity looks like. Properties "Mesh" and "Material", local asset names.
class QSF_API MeshComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::MeshComponent"};
  explicit MeshComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const AssetProxy& getMesh() const { return mMesh; }
  void setMesh(const AssetProxy& mesh) { mMesh = mesh; }
  const AssetProxy& getMaterial() const { return mMaterial; }
  void setMaterial(const AssetProxy& material) { mMaterial = material; }

private:
  AssetProxy mMesh, mMaterial;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::MeshComponent)
