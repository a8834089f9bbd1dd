#pragma once
#include "qsf/component/Component.h"

#include <algorithm>

namespace qsf {

/// When an entity is drawn within a picture. Property "RenderQueueId": what has a smaller one is drawn earlier; 50 at
/// first. There are 0 to 105.
class QSF_API RendererComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::RendererComponent"};
  explicit RendererComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  int getRenderQueueId() const { return mRenderQueueId; }
  /// Numbers beyond the ends are taken for them.
  void setRenderQueueId(int id) { mRenderQueueId = std::clamp(id, 0, MAXIMUM_RENDER_QUEUE_ID); }
  static constexpr int MAXIMUM_RENDER_QUEUE_ID = 105;

private:
  int mRenderQueueId = 50;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::RendererComponent)
