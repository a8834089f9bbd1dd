// The base project's commands for tests of scripts: they show whether and how the language gives commands.
#include "em5/command/Command.h"

#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace test {

namespace {

constexpr int PRIORITY = 50;

const qsf::RecordedOperation executeCall{
    "test::Recorder::execute",
    "caller, target, its position, `1` if nobody has clicked, all callers with blanks between"};

std::string idOf(const qsf::Entity* entity) { return entity ? std::to_string(entity->getId()) : "null"; }

}

/// Is always to be had and notes each execution.
class Recorder : public em5::Command {
  CAMP_RTTI()
public:
  explicit Recorder(qsf::game::CommandManager* manager) : Recorder(manager, qsf::StringHash("test::Recorder")) {}
  static void declareCamp();

  void execute(const qsf::game::CommandContext& context) override {
    std::string callers;
    for (const qsf::Entity* caller : context.mCallers)
      callers += (callers.empty() ? "" : " ") + idOf(caller);
    executeCall.record({idOf(context.mCaller), idOf(context.mTargetEntity),
                        context.mTargetPosition ? qsf::toText(*context.mTargetPosition) : "null",
                        context.mIsAutomatism ? "1" : "0", callers});
  }

protected:
  Recorder(qsf::game::CommandManager* manager, qsf::StringHash id) : Command(manager, id) { setPriority(PRIORITY); }
};

/// Can't be given at present.
class Unavailable : public Recorder {
  CAMP_RTTI()
public:
  explicit Unavailable(qsf::game::CommandManager* manager) : Recorder(manager, qsf::StringHash("test::Unavailable")) {}
  static void declareCamp();
  bool checkAvailable() override { return false; }
};

/// No unit is good enough for it.
class Picky : public Recorder {
  CAMP_RTTI()
public:
  explicit Picky(qsf::game::CommandManager* manager) : Recorder(manager, qsf::StringHash("test::Picky")) {}
  static void declareCamp();
  bool checkCaller(qsf::Entity&) override { return false; }
};

/// Makes sense nowhere.
class OutOfContext : public Recorder {
  CAMP_RTTI()
public:
  explicit OutOfContext(qsf::game::CommandManager* manager)
      : Recorder(manager, qsf::StringHash("test::OutOfContext")) {}
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext&) override { return false; }
};

}
CAMP_TYPE_NONCOPYABLE(test::Recorder)
CAMP_TYPE_NONCOPYABLE(test::Unavailable)
CAMP_TYPE_NONCOPYABLE(test::Picky)
CAMP_TYPE_NONCOPYABLE(test::OutOfContext)

namespace test {

namespace {

const qsf::DeclaredClass<Recorder> declaredRecorder;
const qsf::DeclaredClass<Unavailable> declaredUnavailable;
const qsf::DeclaredClass<Picky> declaredPicky;
const qsf::DeclaredClass<OutOfContext> declaredOutOfContext;

template <class T, class Base> void declare(const char* name) {
  qsf::ClassRegistry::declareOnce<Base>();
  camp::Class::declare<T>(name).template base<Base>().template constructor1<qsf::game::CommandManager*>();
}

}

void Recorder::declareCamp() { declare<Recorder, em5::Command>("test::Recorder"); }
void Unavailable::declareCamp() { declare<Unavailable, Recorder>("test::Unavailable"); }
void Picky::declareCamp() { declare<Picky, Recorder>("test::Picky"); }
void OutOfContext::declareCamp() { declare<OutOfContext, Recorder>("test::OutOfContext"); }

}
