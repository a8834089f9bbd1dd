#include "qsf/message/MessageSystem.h"
#include "qsf/Qsf.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/message/MessageProxy.h"

#include <gtest/gtest.h>

#include <memory>
#include <span>
#include <stdexcept>

namespace {

using qsf::MessageConfiguration;
using qsf::MessageParameters;
using qsf::MessageProxy;
using qsf::StringHash;

const StringHash ID("test::Message");

class MessageSystemTest : public testing::Test {
protected:
  MessageSystemTest() {
    host.getLogSystem().addListener([this](const qsf::LogSystem::Record& record) {
      lines.push_back(std::to_string(record.severity) + " " + std::string(record.message));
    });
  }
  MessageProxy::MessageFunction note(const std::string& text) {
    return [this, text](const MessageParameters&) { calls += text; };
  }
  void emit(const MessageConfiguration& message = ID) { host.getMessageSystem().emitMessage(message); }

  qsf::Qsf host;
  std::string calls;
  std::vector<std::string> lines;
};

TEST_F(MessageSystemTest, DeliversInsideTheCallInTheOrderOfRegistration) {
  MessageProxy a, b, other;
  a.registerAt(ID, note("a"));
  other.registerAt(StringHash("test::Other"), note("x"));
  b.registerAt(ID, note("b"));
  calls += "(";
  emit();
  calls += ")";
  EXPECT_EQ(calls, "(ab)");
}

TEST_F(MessageSystemTest, AListenersFiltersMustMatchUnlessUninitialised) {
  MessageProxy any, first, second, third, both;
  any.registerAt(ID, note("any "));
  first.registerAt(MessageConfiguration(ID, 1), note("1 "));
  second.registerAt(MessageConfiguration(ID, qsf::UNINITIALIZED_ID, 2), note("_2 "));
  third.registerAt(MessageConfiguration(ID, qsf::UNINITIALIZED_ID, qsf::UNINITIALIZED_ID, 3), note("__3 "));
  both.registerAt(MessageConfiguration(ID, 1, 2), note("12 "));
  emit(MessageConfiguration(ID, 1, 2, 3));
  EXPECT_EQ(calls, "any 1 _2 __3 12 ");
  calls.clear();
  emit(MessageConfiguration(ID, 1));
  EXPECT_EQ(calls, "any 1 ");
  calls.clear();
  emit();
  EXPECT_EQ(calls, "any ");
}

TEST_F(MessageSystemTest, HandsOverParametersAndTakesAResponse) {
  MessageProxy proxy;
  int number = 0;
  std::string wrongType = "unchanged";
  proxy.registerAt(ID, [&](const MessageParameters& parameters) {
    EXPECT_TRUE(parameters.getParameter("number", number));
    EXPECT_FALSE(parameters.getParameter("number", wrongType));
    EXPECT_FALSE(parameters.getParameter("missing", number));
    EXPECT_EQ(parameters.getFilter(1), 5u);
    EXPECT_EQ(parameters.getMessage().getFilters().size(), 1u);
    parameters.setResponse(MessageParameters::RESPONSE_BLOCK);
  });
  MessageParameters parameters(MessageConfiguration(ID, 5));
  parameters.setParameter("number", 12);
  EXPECT_EQ(parameters.getResponse(), 0);
  host.getMessageSystem().emitMessage(parameters);
  EXPECT_EQ(number, 12);
  EXPECT_EQ(wrongType, "unchanged");
  EXPECT_EQ(parameters.getResponse(), MessageParameters::RESPONSE_BLOCK);
}

TEST_F(MessageSystemTest, AFilterThatWasNotGivenIsToldInOneLineAndCostsThatCallback) {
  for (const unsigned int number : {0u, 2u, 3u, 4u}) {
    lines.clear();
    calls.clear();
    MessageProxy proxy, behind;
    proxy.registerAt(ID, [&](const MessageParameters& parameters) {
      parameters.getFilter(number);
      calls += "never ";
    });
    behind.registerAt(ID, note("behind"));
    emit(MessageConfiguration(ID, 5));
    EXPECT_EQ(calls, "behind") << number;
    ASSERT_EQ(lines.size(), 1u) << number;
    EXPECT_EQ(lines[0], "4 Invalid index for MessageConfiguration::getFilter()");
  }
  EXPECT_EQ(host.getFaultCounter().getCount(), 4u);
  EXPECT_EQ(host.getFaultCounter().getLastFault(), "Fault in a listener to message " + std::to_string(ID.getHash()) +
                                                       ": Invalid index for MessageConfiguration::getFilter()");
}

TEST_F(MessageSystemTest, AFilterMayBeGivenAsUninitialised) {
  const MessageConfiguration message(ID, 5, qsf::UNINITIALIZED_ID);
  EXPECT_EQ(message.getFilter(2), qsf::UNINITIALIZED_ID);
  EXPECT_THROW(message.getFilter(3), std::runtime_error);
}

TEST_F(MessageSystemTest, FiltersOfAListAreThoseThatAreGivenOneByOne) {
  const std::uint64_t filters[] = {1, 2, 3, 4};
  EXPECT_TRUE(MessageConfiguration(ID, std::span(filters, 0)).getFilters().empty());
  EXPECT_THROW(MessageConfiguration(ID, std::span(filters, 1)).getFilter(2), std::runtime_error);
  const MessageConfiguration all(ID, filters);
  EXPECT_EQ(all.getFilters().size(), 3u);
  EXPECT_EQ(all.getFilter(3), 3u);
}

TEST_F(MessageSystemTest, AParameterFromATextIsReadAsTheTypeThatIsAskedFor) {
  MessageParameters parameters{MessageConfiguration(ID)};
  parameters.setParameterFromText("text", "12 engines");
  parameters.setParameterFromText("number", "300");
  parameters.setParameterFromText("negative", "-2");
  parameters.setParameterFromText("flag", "true");
  std::string text;
  std::uint64_t id = 7;
  int number = 0;
  float decimal = 0;
  unsigned char small = 7;
  bool flag = false;
  EXPECT_TRUE(parameters.getParameter("text", text));
  EXPECT_EQ(text, "12 engines");
  EXPECT_FALSE(parameters.getParameter("text", id));
  EXPECT_FALSE(parameters.getParameter("negative", id));
  EXPECT_EQ(id, 7u);
  EXPECT_TRUE(parameters.getParameter("number", id));
  EXPECT_EQ(id, 300u);
  EXPECT_TRUE(parameters.getParameter("negative", number));
  EXPECT_EQ(number, -2);
  EXPECT_TRUE(parameters.getParameter("number", decimal));
  EXPECT_EQ(decimal, 300.0f);
  EXPECT_FALSE(parameters.getParameter("number", small)) << "it can't hold it";
  EXPECT_EQ(small, 7);
  EXPECT_FALSE(parameters.getParameter("number", flag));
  EXPECT_TRUE(parameters.getParameter("flag", flag));
  EXPECT_TRUE(flag);
  const void* pointer = nullptr;
  EXPECT_FALSE(parameters.getParameter("number", pointer));
}

TEST_F(MessageSystemTest, AnObserverHearsEveryMessageBeforeItsListeners) {
  host.getMessageSystem().addObserver([this](const MessageConfiguration& message) {
    calls += "[" + std::to_string(message.getFilters().size()) + "]";
  });
  MessageProxy proxy;
  proxy.registerAt(ID, note("heard"));
  emit(MessageConfiguration(ID, 1, 2));
  emit(StringHash("test::Other"));
  EXPECT_EQ(calls, "[2]heard[0]");
}

TEST_F(MessageSystemTest, AListenerRegisteredInsideHearsTheNextMessage) {
  MessageProxy outer, inner;
  outer.registerAt(ID, [&](const MessageParameters&) {
    calls += "outer ";
    if (!inner.isRegistered()) inner.registerAt(ID, note("inner "));
  });
  emit();
  EXPECT_EQ(calls, "outer ");
  emit();
  EXPECT_EQ(calls, "outer outer inner ");
}

TEST_F(MessageSystemTest, AListenerUnregisteredInsideHearsNothingMore) {
  MessageProxy first, second;
  first.registerAt(ID, [&](const MessageParameters&) {
    calls += "first ";
    second.unregister();
  });
  second.registerAt(ID, note("second "));
  emit();
  EXPECT_EQ(calls, "first ");
  EXPECT_FALSE(second.isRegistered());
}

TEST_F(MessageSystemTest, ARunningListenerMayDestroyItsOwnerAndListenersOfOtherMessages) {
  auto owner = std::make_unique<MessageProxy>();
  auto other = std::make_unique<MessageProxy>();
  const auto captured = std::make_shared<std::string>("captured by the function itself");
  owner->registerAt(ID, [&, captured](const MessageParameters&) {
    owner.reset();
    other.reset();
    for (int i = 0; i < 100; ++i) // the map of listeners grows under the running message
      emit(StringHash("test::Message" + std::to_string(i)));
    calls += *captured;
  });
  other->registerAt(StringHash("test::Other"), note("other"));
  MessageProxy behind;
  behind.registerAt(ID, note(" behind"));
  emit();
  EXPECT_EQ(calls, "captured by the function itself behind");
  EXPECT_EQ(captured.use_count(), 1);
  emit(StringHash("test::Other"));
  EXPECT_EQ(calls, "captured by the function itself behind");
}

TEST_F(MessageSystemTest, MessagesMayNest) {
  MessageProxy outer, inner;
  outer.registerAt(ID, [&](const MessageParameters&) {
    calls += "(";
    emit(StringHash("test::Inner"));
    calls += ")";
  });
  inner.registerAt(StringHash("test::Inner"), note("inner"));
  emit();
  EXPECT_EQ(calls, "(inner)");
}

TEST_F(MessageSystemTest, EndlessRecursionIsCutWithOneErrorInTheLog) {
  MessageProxy first, second;
  int count = 0;
  const auto again = [&](const MessageParameters&) {
    ++count;
    emit();
  };
  // Two listeners that each emit again would double the work at each level.
  first.registerAt(ID, again);
  second.registerAt(ID, again);
  host.getMessageSystem().addMessageName("test::Message");
  emit();
  EXPECT_LE(count, 2 * qsf::MessageSystem::MAXIMUM_DEPTH);
  EXPECT_GE(count, qsf::MessageSystem::MAXIMUM_DEPTH);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].find("4 "), 0u);
  EXPECT_NE(lines[0].find("test::Message"), std::string::npos);
  EXPECT_EQ(host.getFaultCounter().getCount(), 1u);
  // The next message is delivered as ever.
  first.unregister();
  second.registerAt(ID, note("heard"));
  emit();
  EXPECT_EQ(calls, "heard");
}

TEST_F(MessageSystemTest, AFaultIsLoggedAndTheOtherListenersHearTheMessage) {
  MessageProxy faulty, sound;
  faulty.registerAt(ID, [](const MessageParameters&) { throw std::runtime_error("broken"); });
  sound.registerAt(ID, note("sound"));
  host.getMessageSystem().addMessageName("test::Message");
  emit();
  EXPECT_EQ(calls, "sound");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "4 Fault in a listener to message test::Message: broken");
  EXPECT_EQ(host.getFaultCounter().getCount(), 1u);
}

TEST_F(MessageSystemTest, CountsMessagesByIdAndByName) {
  host.getMessageSystem().addMessageName("test::Message");
  emit();
  emit();
  emit(StringHash(77u));
  EXPECT_EQ(host.getMessageSystem().getEmittedCount(ID), 2u);
  EXPECT_EQ(host.getMessageSystem().getEmittedCount(StringHash("never")), 0u);
  EXPECT_EQ(host.getMessageSystem().getEmittedCounts(),
            (std::map<std::string, std::uint64_t>{{"77", 1}, {"test::Message", 2}}));
}

TEST_F(MessageSystemTest, TellsWhichMessagesThereAre) {
  EXPECT_TRUE(host.getMessageSystem().getMessageNames().empty());
  host.getMessageSystem().addMessageName("test::Message");
  host.getMessageSystem().addMessageName("test::Another");
  host.getMessageSystem().addMessageName("test::Message");
  EXPECT_EQ(host.getMessageSystem().getMessageNames(), (std::set<std::string>{"test::Another", "test::Message"}));
}

TEST(MessageProxy, MayOutliveTheHostAndBeUsedWithoutOne) {
  MessageProxy proxy;
  proxy.registerAt(ID, [](const MessageParameters&) {});
  EXPECT_FALSE(proxy.isRegistered());
  {
    qsf::Qsf host;
    proxy.registerAt(ID, [](const MessageParameters&) {});
    EXPECT_TRUE(proxy.isRegistered());
  }
  EXPECT_FALSE(proxy.isRegistered());
  proxy.unregister();
}

}
