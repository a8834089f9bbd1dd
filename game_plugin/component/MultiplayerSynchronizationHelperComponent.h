#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

#include <camp/camptype.hpp>

#include <cstdint>
#include <string>

namespace script {

/// Names one property of one component of one entity that the machines of a session keep alike. A
/// MultiplayerSynchronizationMasterComponent lists the entities that carry these.
class MultiplayerSynchronizationHelperComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::MultiplayerSynchronizationHelperComponent"};
  /// For the editor: values travel as text, whatever is chosen.
  enum Types { UINT64 = 0, FLOAT = 1, STRING = 2, BOOL = 3 };

  explicit MultiplayerSynchronizationHelperComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Id of the component's class, as its name was when this component started.
  qsf::StringHash getSynchronizedComponentId() const { return mComponentId; }
  const std::string& getPropertyName() const { return mPropertyName; }
  std::uint64_t getSynchronizedEntity() const { return mSynchronizedEntity; }
  void setSynchronizedEntity(std::uint64_t entityId) { mSynchronizedEntity = entityId; }
  void setCurrentValue(const std::string& value) { mCurrentValue = value; }
  /// Writes the current value into the property. The component is made if it is missing; what can't be written is
  /// logged. Nothing happens without the entity.
  void writeProperty() const;

protected:
  bool onStartup() override;

private:
  std::string mComponentName;
  std::string mPropertyName;
  std::uint64_t mSynchronizedEntity = qsf::UNINITIALIZED_ID;
  Types mType = UINT64;
  qsf::StringHash mComponentId;
  std::string mCurrentValue;
};

}
CAMP_TYPE_NONCOPYABLE(script::MultiplayerSynchronizationHelperComponent)
CAMP_TYPE(script::MultiplayerSynchronizationHelperComponent::Types)
