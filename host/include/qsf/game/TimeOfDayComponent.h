#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace qsf::game {

/// The map's clock, on the core entity. It stands, at noon first, unless "TimeFactor" says how many seconds of the day
/// pass in a simulated second. Properties "Hour" (0 to 23), "Minute" (0 to 59), "Second" (0 to 59), "TimeFactor".
class QSF_API TimeOfDayComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::TimeOfDayComponent"};
  explicit TimeOfDayComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Time since midnight.
  Time getTime() const { return mTime; }
  /// Wraps round at midnight, in both directions.
  void setTime(Time time);
  int getHour() const;
  int getMinute() const;
  int getSecond() const;
  /// These keep the other parts. Numbers out of range throw std::out_of_range.
  void setHour(int hour);
  void setMinute(int minute);
  void setSecond(int second);
  float getTimeFactor() const { return mTimeFactor; }
  /// A factor that isn't finite throws std::out_of_range.
  void setTimeFactor(float factor);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void setPart(int value, int limit, const char* name, std::int64_t unit, int old);
  void updateRegistration();

  JobProxy mJob;
  Time mTime = Time::fromMicroseconds(12ll * 3600 * 1000000);
  float mTimeFactor = 0;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::TimeOfDayComponent)
