#include "qsf/game/TimeOfDayComponent.h"

#include "qsf/reflection/ClassRegistry.h"

#include <cmath>
#include <stdexcept>

namespace qsf::game {

namespace {

constexpr std::int64_t SECOND = 1000000;
constexpr std::int64_t MINUTE = 60 * SECOND;
constexpr std::int64_t HOUR = 60 * MINUTE;
constexpr std::int64_t DAY = 24 * HOUR;

}

static const DeclaredClass<TimeOfDayComponent> declared;

void TimeOfDayComponent::declareCamp() {
  camp::Class::declare<TimeOfDayComponent>("qsf::game::TimeOfDayComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Hour", &TimeOfDayComponent::getHour, &TimeOfDayComponent::setHour)
      .property("Minute", &TimeOfDayComponent::getMinute, &TimeOfDayComponent::setMinute)
      .property("Second", &TimeOfDayComponent::getSecond, &TimeOfDayComponent::setSecond)
      .property("TimeFactor", &TimeOfDayComponent::getTimeFactor, &TimeOfDayComponent::setTimeFactor);
}

void TimeOfDayComponent::setTime(Time time) {
  mTime = Time::fromMicroseconds((time.getMicroseconds() % DAY + DAY) % DAY);
}

int TimeOfDayComponent::getHour() const { return static_cast<int>(mTime.getMicroseconds() / HOUR); }

int TimeOfDayComponent::getMinute() const { return static_cast<int>(mTime.getMicroseconds() % HOUR / MINUTE); }

int TimeOfDayComponent::getSecond() const { return static_cast<int>(mTime.getMicroseconds() % MINUTE / SECOND); }

void TimeOfDayComponent::setPart(int value, int limit, const char* name, std::int64_t unit, int old) {
  if (value < 0 || value >= limit)
    throw std::out_of_range(std::string(name) + " " + std::to_string(value) + " is not in 0 to " +
                            std::to_string(limit - 1));
  mTime = Time::fromMicroseconds(mTime.getMicroseconds() + (value - old) * unit);
}

void TimeOfDayComponent::setHour(int hour) { setPart(hour, 24, "hour", HOUR, getHour()); }

void TimeOfDayComponent::setMinute(int minute) { setPart(minute, 60, "minute", MINUTE, getMinute()); }

void TimeOfDayComponent::setSecond(int second) { setPart(second, 60, "second", SECOND, getSecond()); }

void TimeOfDayComponent::setTimeFactor(float factor) {
  if (!std::isfinite(factor)) throw std::out_of_range("the time factor is not a finite number");
  mTimeFactor = factor;
  updateRegistration();
}

bool TimeOfDayComponent::onStartup() {
  updateRegistration();
  return true;
}

void TimeOfDayComponent::onShutdown() { mJob.unregister(); }

void TimeOfDayComponent::updateRegistration() {
  if (!isRunning() || mTimeFactor == 0) return mJob.unregister();
  if (mJob.isRegistered()) return;
  mJob.registerInSimulation([this](const JobArguments& arguments) {
    const double passed = arguments.getTimePassed().getSecondsAsDouble() * static_cast<double>(mTimeFactor);
    setTime(mTime + Time::fromSeconds(std::fmod(passed, 86400.0)));
  });
}

}
