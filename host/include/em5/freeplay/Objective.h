#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"
#include "qsf/reflection/Object.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qsf {
class Entity;
}

namespace em5 {

class EventArchive;

/// What an objective means for its event.
enum ObjectiveType {
  OBJECTIVE_REQUIRED = 0, ///< has to be reached for the event to succeed
  OBJECTIVE_FAIL = 1,     ///< the event fails when it is reached
  OBJECTIVE_OPTIONAL = 2  ///< tells how far the player is, and decides nothing
};

/// Something that an event counts. Owned by the event's ObjectiveList. Properties "TypeId", "Type" (a number of
/// ObjectiveType), "Text", "NeededNumber", "CurrentNumber", "OrderPriority".
class QSF_API Objective : public qsf::Object {
  CAMP_RTTI()
public:
  Objective() = default;
  Objective(qsf::StringHash typeId, ObjectiveType type, std::uint64_t eventId, int orderPriority)
      : mTypeId(typeId), mEventId(eventId), mType(type), mOrderPriority(orderPriority) {}
  Objective(const Objective&) = delete;
  Objective& operator=(const Objective&) = delete;
  static void declareCamp();

  /// Unique within the event.
  qsf::StringHash getTypeId() const { return mTypeId; }
  ObjectiveType getType() const { return mType; }
  std::uint64_t getEventId() const { return mEventId; }
  int getOrderPriority() const { return mOrderPriority; }

  /// The text as it was set: a text id, or a plain text.
  const std::string& getText() const { return mText; }
  void setText(const std::string& text) { mText = text; }
  /// The text as the player reads it: localised, the current number in the place of the first %d and the needed one in
  /// that of the second.
  std::string getShownText() const;

  int getNeededNumber() const { return mNeededNumber; }
  void setNeededNumber(int number) { mNeededNumber = number; }
  int getCurrentNumber() const { return mCurrentNumber; }
  void setCurrentNumber(int number) { mCurrentNumber = number; }
  /// The current number is at least the needed one. One without a needed number (0 or less) is never reached.
  bool isReached() const { return mNeededNumber > 0 && mCurrentNumber >= mNeededNumber; }

  // By one. The entity may be null; one that is given comes on the list of those that the objective waits for, or
  // leaves it. An entity that isn't on the list counts all the same.

  void increaseNeededNumber(const qsf::Entity* entity);
  void decreaseNeededNumber(const qsf::Entity* entity);
  void increaseCurrentNumber(const qsf::Entity* entity);
  /// Entities that the objective waits for, in the order in which they came.
  const std::vector<std::uint64_t>& getEntityIds() const { return mEntityIds; }

  void serialize(EventArchive& archive);

private:
  int getTypeNumber() const { return mType; }
  void forget(const qsf::Entity* entity);

  qsf::StringHash mTypeId;
  std::uint64_t mEventId = 0;
  ObjectiveType mType = OBJECTIVE_REQUIRED;
  std::string mText;
  int mNeededNumber = 0;
  int mCurrentNumber = 0;
  int mOrderPriority = 100;
  std::vector<std::uint64_t> mEntityIds;
};

}
CAMP_TYPE_NONCOPYABLE(em5::Objective)
