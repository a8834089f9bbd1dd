#pragma once
#include "qsf/base/JsonFile.h"
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"

namespace em5 {

/// What events are written to and made from: one JSON object. The same calls, in the same order, serve both ways.
/// Reading throws what the JSON library throws.
class EventArchive {
public:
  enum class Direction { WRITING, READING };
  EventArchive(qsf::Json& object, Direction direction) : mObject(object), mDirection(direction) {}

  bool isReading() const { return mDirection == Direction::READING; }

  template <class T> void member(const char* name, T& value) {
    if (isReading())
      value = mObject.at(name).get<T>();
    else
      mObject[name] = value;
  }
  void member(const char* name, qsf::Time& value) {
    std::int64_t microseconds = value.getMicroseconds();
    member(name, microseconds);
    value = qsf::Time::fromMicroseconds(microseconds);
  }
  void member(const char* name, qsf::StringHash& value) {
    std::uint32_t hash = value.getHash();
    member(name, hash);
    value = qsf::StringHash(hash);
  }

  /// An array of objects: when writing, `count` of them; calls back with the archive of each. Returns how many.
  template <class Visit> std::size_t elements(const char* name, std::size_t count, Visit&& visit) {
    qsf::Json& array = isReading() ? mObject.at(name) : (mObject[name] = qsf::Json::array());
    if (isReading()) count = array.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (!isReading()) array.push_back(qsf::Json::object());
      EventArchive element(array.at(i), mDirection);
      visit(i, element);
    }
    return count;
  }

private:
  qsf::Json& mObject;
  Direction mDirection;
};

}
