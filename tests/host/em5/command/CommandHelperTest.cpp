#include "em5/command/CommandHelper.h"

#include "em5/base/Messages.h"
#include "em5/component/CommandableComponent.h"
#include "host/em5/SessionFixture.h"
#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/game/Plugin.h"
#include "qsf/message/MessageProxy.h"

using em5::CommandHelper;

namespace {

class CommandHelperTest : public SessionTest {
protected:
  CommandHelperTest() {
    play();
    caller = qsf::getMainMap().createEntity(100);
    commands = &caller->getOrCreateComponent<em5::CommandableComponent>()->getCommandIdsForWriting();
  }
  std::size_t executions() const {
    std::size_t count = 0;
    for (const auto& call : session->getQsf().getCallRecorder().getCalls())
      count += call.operation == "test::Recorder::execute" ? 1 : 0;
    return count;
  }
  static constexpr qsf::StringHash RECORDER{"test::Recorder"};
  qsf::Entity* caller;
  std::vector<std::uint32_t>* commands;
};

TEST_F(CommandHelperTest, ACommandIsOneObjectThatKnowsItsName) {
  qsf::game::CommandManager& manager = qsf::game::Plugin::getInstance()->getCommandSystem().getCommandManager();
  qsf::game::Command* command = manager.internalGetCommandById(RECORDER);
  ASSERT_NE(nullptr, command);
  EXPECT_EQ("test::Recorder", command->getName());
  EXPECT_EQ(RECORDER, command->getId());
  EXPECT_EQ(command, manager.internalGetCommandById(RECORDER));
  EXPECT_EQ(&manager, &command->getManager());
}

TEST_F(CommandHelperTest, ClassesThatAreNoCommandsAreNotFound) {
  for (const char* name : {"em5::MoveAction", "em5::Command", "em5::EquipmentCommand", "qsf::game::Command", "nothing"})
    EXPECT_EQ(nullptr, CommandHelper::findCommand(qsf::StringHash(name))) << name;
}

TEST_F(CommandHelperTest, AForgottenCommandIsMadeAnew) {
  qsf::game::CommandManager& manager = qsf::game::Plugin::getInstance()->getCommandSystem().getCommandManager();
  ASSERT_NE(nullptr, manager.internalGetCommandById(RECORDER));
  manager.forgetCommand(RECORDER);
  EXPECT_NE(nullptr, manager.internalGetCommandById(RECORDER));
}

TEST_F(CommandHelperTest, WhoHasNoCommandsHasNoBestOne) {
  EXPECT_EQ(nullptr, CommandHelper::findBestCommand(CommandHelper::makeContext(*caller, nullptr)));
  qsf::Entity* other = qsf::getMainMap().createEntity(101);
  EXPECT_EQ(nullptr, CommandHelper::findBestCommand(CommandHelper::makeContext(*other, nullptr)));
}

TEST_F(CommandHelperTest, ABlockedCommandIsNotExecuted) {
  const em5::CommandContext context = CommandHelper::makeContext(*caller, caller);
  em5::Command& command = *CommandHelper::findCommand(RECORDER);
  qsf::MessageProxy listener;
  const em5::CommandContext* seen = nullptr;
  bool blocks = true;
  listener.registerAt(em5::Messages::EM5_PRE_COMMAND_EXECUTE, [&](const qsf::MessageParameters& parameters) {
    EXPECT_EQ(RECORDER.getHash(), parameters.getFilter(1));
    EXPECT_EQ(100u, parameters.getFilter(2));
    EXPECT_EQ(100u, parameters.getFilter(3));
    parameters.getParameter("context", seen);
    if (blocks) parameters.setResponse(qsf::MessageParameters::RESPONSE_BLOCK);
  });
  CommandHelper::execute(command, context);
  EXPECT_EQ(0u, executions());
  EXPECT_EQ(&context, seen);
  blocks = false;
  CommandHelper::execute(command, context);
  EXPECT_EQ(1u, executions());
}

}
