#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/game/CommandContext.h"
#include "qsf/reflection/Object.h"

#include <string>

namespace qsf::game {

class CommandManager;

/// Something that units can be told to do. One object of each class serves all units; the command manager makes and
/// owns it. Classes are declared with a constructor that takes the manager and added to the class registry; the id is
/// the hash of the class's name. The checks come in the order in which they stand here, each if those before it held.
class QSF_API Command : public Object {
  CAMP_RTTI()
public:
  Command(CommandManager* manager, StringHash id) : mManager(manager), mId(id) {}
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  static void declareCamp();

  StringHash getId() const { return mId; }
  CommandManager& getManager() const { return *mManager; }

  /// Whether the command can be given at all at present.
  virtual bool checkAvailable() { return true; }
  /// Whether that entity can be told to.
  virtual bool checkCaller(Entity& /*caller*/) { return true; }
  /// Whether it makes sense there.
  virtual bool checkContext(const CommandContext& /*context*/) { return true; }
  virtual void execute(const CommandContext& context) = 0;
  /// The class's name.
  virtual std::string getName() const;

private:
  CommandManager* mManager;
  StringHash mId;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::Command)

// A command class is declared with a constructor that takes a manager, for which CAMP needs the whole class.
#include "qsf/game/CommandManager.h" // IWYU pragma: keep
