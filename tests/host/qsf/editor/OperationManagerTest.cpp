// The editor's steps: what stands, what was undone, what is forgotten.
#include "qsf/editor/base/OperationManager.h"
#include "host/qsf/TestWorld.h"
#include "qsf/editor/base/CompoundOperation.h"

using qsf::editor::base::CompoundOperation;
using qsf::editor::base::Operation;
using qsf::editor::base::OperationData;
using qsf::editor::base::OperationManager;

namespace {

using Deeds = std::vector<std::string>;

/// Notes what it is told to do.
class Noted : public Operation {
public:
  Noted(Deeds& deeds, const std::string& name, const bool& isPossible) : mDeeds(deeds), mIsPossible(isPossible) {
    setText(name);
  }
  ~Noted() override { mDeeds.push_back("forget " + getText()); }
  bool redo() override {
    if (mIsPossible) mDeeds.push_back("do " + getText());
    return mIsPossible;
  }
  void undo() override { mDeeds.push_back("undo " + getText()); }

private:
  Deeds& mDeeds;
  const bool& mIsPossible;
};

class OperationManagerTest : public host_test::WorldTest {
protected:
  std::unique_ptr<Operation> make(const std::string& name) { return std::make_unique<Noted>(deeds, name, always); }
  std::unique_ptr<Operation> makeDoubtful(const std::string& name) {
    return std::make_unique<Noted>(deeds, name, isPossible);
  }
  bool push(const std::string& name) { return manager.push(make(name), true); }
  Deeds takeDeeds() { return std::exchange(deeds, {}); }
  std::pair<std::size_t, std::size_t> steps() const {
    return {manager.getNumberOfUndoSteps(), manager.getNumberOfRedoSteps()};
  }

  Deeds deeds; // outlives the operations
  const bool always = true;
  bool isPossible = true;
  OperationManager manager;
};

using Steps = std::pair<std::size_t, std::size_t>;

TEST_F(OperationManagerTest, APushCarriesOutAndIsAStep) {
  EXPECT_TRUE(push("a"));
  EXPECT_EQ(takeDeeds(), Deeds{"do a"});
  EXPECT_EQ(steps(), Steps(1, 0));
  EXPECT_EQ(manager.getSteps()[0]->getText(), "a");
}

TEST_F(OperationManagerTest, WhatIsDoneAlreadyIsOnlyEntered) {
  EXPECT_TRUE(manager.push(make("a"), false));
  EXPECT_EQ(takeDeeds(), Deeds{});
  EXPECT_EQ(steps(), Steps(1, 0));
  manager.undo();
  EXPECT_EQ(takeDeeds(), Deeds{"undo a"});
}

TEST_F(OperationManagerTest, UndoGoesBackwardAndRedoForward) {
  push("a");
  push("b");
  takeDeeds();
  EXPECT_TRUE(manager.undo());
  EXPECT_TRUE(manager.undo());
  EXPECT_EQ(steps(), Steps(0, 2));
  EXPECT_TRUE(manager.redo());
  EXPECT_TRUE(manager.redo());
  EXPECT_EQ(takeDeeds(), (Deeds{"undo b", "undo a", "do a", "do b"}));
  EXPECT_EQ(steps(), Steps(2, 0));
}

TEST_F(OperationManagerTest, AtTheEndsNothingHappens) {
  EXPECT_FALSE(manager.undo());
  EXPECT_FALSE(manager.redo());
  push("a");
  EXPECT_FALSE(manager.redo());
  manager.undo();
  EXPECT_FALSE(manager.undo());
  EXPECT_EQ(takeDeeds(), (Deeds{"do a", "undo a"}));
  EXPECT_EQ(steps(), Steps(0, 1));
}

TEST_F(OperationManagerTest, ANewStepForgetsWhatWasUndone) {
  push("a");
  push("b");
  push("c");
  manager.undo();
  manager.undo();
  takeDeeds();
  push("d");
  EXPECT_EQ(takeDeeds(), (Deeds{"do d", "forget b", "forget c"}));
  EXPECT_EQ(steps(), Steps(2, 0));
  manager.undo();
  manager.undo();
  EXPECT_EQ(takeDeeds(), (Deeds{"undo d", "undo a"}));
}

TEST_F(OperationManagerTest, WhatFailsIsNoStepAndForgetsNothing) {
  push("a");
  manager.undo();
  isPossible = false;
  EXPECT_FALSE(manager.push(makeDoubtful("b"), true));
  EXPECT_FALSE(manager.push(nullptr, true));
  EXPECT_EQ(steps(), Steps(0, 1));
  EXPECT_TRUE(manager.redo());
}

TEST_F(OperationManagerTest, ARedoThatFailsIsToldAndCanBeTriedAgain) {
  manager.push(makeDoubtful("a"), true);
  manager.undo();
  isPossible = false;
  EXPECT_FALSE(manager.redo());
  EXPECT_EQ(log, std::vector<std::string>{"The step \"a\" cannot be redone"});
  EXPECT_EQ(steps(), Steps(0, 1));
  isPossible = true;
  EXPECT_TRUE(manager.redo());
  EXPECT_EQ(steps(), Steps(1, 0));
}

TEST_F(OperationManagerTest, ClearForgetsAllSteps) {
  push("a");
  push("b");
  manager.undo();
  takeDeeds();
  manager.clear();
  EXPECT_EQ(takeDeeds().size(), 2u);
  EXPECT_EQ(steps(), Steps(0, 0));
  EXPECT_FALSE(manager.undo());
  EXPECT_FALSE(manager.redo());
}

TEST_F(OperationManagerTest, ACompoundIsOneStepAndUndoneInReverse) {
  auto compound = std::make_unique<CompoundOperation>();
  compound->pushBackOperation(make("a"));
  compound->pushBackOperation(make("b"));
  compound->pushBackOperation(nullptr);
  EXPECT_EQ(compound->getOperations().size(), 2u);
  manager.push(std::move(compound), true);
  EXPECT_EQ(steps(), Steps(1, 0));
  manager.undo();
  manager.redo();
  EXPECT_EQ(takeDeeds(), (Deeds{"do a", "do b", "undo b", "undo a", "do a", "do b"}));
}

TEST_F(OperationManagerTest, ACompoundIsCarriedOutWhollyOrNotAtAll) {
  auto compound = std::make_unique<CompoundOperation>();
  compound->pushBackOperation(make("a"));
  compound->pushBackOperation(make("b"));
  compound->pushBackOperation(makeDoubtful("c"));
  compound->pushBackOperation(make("d"));
  isPossible = false;
  EXPECT_FALSE(manager.push(std::move(compound), true));
  EXPECT_EQ(Deeds(deeds.begin(), deeds.begin() + 4), (Deeds{"do a", "do b", "undo b", "undo a"}));
  EXPECT_EQ(steps(), Steps(0, 0));
}

TEST_F(OperationManagerTest, DataOfACompoundOutliveItsOperations) {
  class Data : public OperationData {
  public:
    explicit Data(Deeds& deeds) : mDeeds(deeds) {}
    ~Data() override { mDeeds.emplace_back("forget data"); }

  private:
    Deeds& mDeeds;
  };
  auto compound = std::make_unique<CompoundOperation>();
  compound->pushBackOperation(make("a"));
  compound->addOperationData(std::make_unique<Data>(deeds));
  compound.reset();
  EXPECT_EQ(takeDeeds(), (Deeds{"forget a", "forget data"}));
}

}
