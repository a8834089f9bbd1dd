#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"

#include "em5/base/Messages.h"
#include "game_plugin/scenario/messages/MessageNames.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "qsf/message/MessageSystem.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>

#include <memory>

using namespace script;

namespace {

using Ids = std::vector<std::uint64_t>;

class ScenarioMessageRecieverTest : public testing::Test {
protected:
  static std::unique_ptr<ScenarioHandler> makeHandler() {
    return std::make_unique<ScenarioHandler>(std::make_shared<GlobalStores>());
  }
  template <class... Filters> void emit(qsf::StringHash message, Filters... filters) {
    send(qsf::MessageParameters(qsf::MessageConfiguration(message, static_cast<std::uint64_t>(filters)...)));
  }
  static void send(const qsf::MessageParameters& message) {
    qsf::Qsf::instance()->getMessageSystem().emitMessage(message);
  }
  void spawn(std::uint64_t id) { emit(em5::Messages::EM5_SPAWN_ENTITY, id); }
  void use(std::uint64_t caller, std::uint64_t target, const std::string& text) {
    qsf::MessageParameters message(qsf::MessageConfiguration(messages::USE_EQUIPMENT, caller, target));
    message.setParameter("Message", text);
    send(message);
  }
  void activate(const std::string& id, const std::string& units) {
    qsf::MessageParameters message(
        qsf::MessageConfiguration(messages::TRIGGER_ACTIVATOR, qsf::StringHash(id).getHash()));
    message.setParameter("units", units);
    send(message);
  }
  void turnKey(const std::string& name, std::uint64_t pressed) {
    qsf::MessageParameters message(qsf::MessageConfiguration(messages::HOTKEY, pressed));
    message.setParameter("hotkey", name);
    send(message);
  }

  LogCapture host;
  std::unique_ptr<ScenarioHandler> first = makeHandler();
  std::unique_ptr<ScenarioHandler> second = makeHandler();
  ScenarioMessageReciever reciever;
};

TEST_F(ScenarioMessageRecieverTest, WhatArrivesIsReadInTheNextTickAndInNoOther) {
  reciever.registerHandler(first.get());
  spawn(100);
  use(1, 2, "axe1");
  emit(em5::Messages::EM5_CHANGE_SELECTION);
  activate("bell", "101");
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids());
  EXPECT_FALSE(reciever.getSelectionChanged(first.get()));
  reciever.advanceHandler(first.get());
  spawn(101); // in the middle of the tick
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids{100});
  EXPECT_EQ(reciever.getEquipmentRecords("axe1", first.get()), (std::pair<Ids, Ids>({1}, {2})));
  EXPECT_TRUE(reciever.getSelectionChanged(first.get()));
  EXPECT_EQ(reciever.getActivatorIds(first.get(), "bell"), Ids{101});
  reciever.advanceHandler(first.get());
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids{101});
  EXPECT_EQ(reciever.getEquipmentRecords("axe1", first.get()), (std::pair<Ids, Ids>()));
  EXPECT_FALSE(reciever.getSelectionChanged(first.get()));
  EXPECT_EQ(reciever.getActivatorIds(first.get(), "bell"), Ids());
}

TEST_F(ScenarioMessageRecieverTest, EachHandlerHasItsOwnTempo) {
  reciever.registerHandler(first.get());
  reciever.registerHandler(second.get());
  for (std::uint64_t id = 100; id < 103; ++id) {
    spawn(id);
    reciever.advanceHandler(first.get());
    EXPECT_EQ(reciever.getSpawned(first.get()), Ids{id});
  }
  EXPECT_EQ(reciever.getSpawned(second.get()), Ids());
  reciever.advanceHandler(second.get());
  EXPECT_EQ(reciever.getSpawned(second.get()), (Ids{100, 101, 102}));
}

TEST_F(ScenarioMessageRecieverTest, RecordsComeInTheOrderOfTheirArrival) {
  reciever.registerHandler(first.get());
  use(2, 11, "axe1");
  use(7, 17, "saw1");
  use(1, 12, "axe1");
  activate("bell", "5,4");
  activate("door", "9");
  activate("bell", "6");
  reciever.advanceHandler(first.get());
  EXPECT_EQ(reciever.getEquipmentRecords("axe1", first.get()), (std::pair<Ids, Ids>({2, 1}, {11, 12})));
  EXPECT_EQ(reciever.getActivatorIds(first.get(), "bell"), (Ids{5, 4, 6}));
}

TEST_F(ScenarioMessageRecieverTest, WithoutRowsNothingIsHeard) {
  spawn(100);
  reciever.registerHandler(first.get());
  reciever.advanceHandler(first.get());
  reciever.advanceHandler(second.get());
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids()) << "it came before the handler was registered";
  EXPECT_EQ(reciever.getSpawned(second.get()), Ids());
  EXPECT_FALSE(reciever.getSelectionChanged(second.get()));
  EXPECT_EQ(reciever.getEquipmentRecords("", second.get()), (std::pair<Ids, Ids>()));
  EXPECT_EQ(reciever.getActivatorIds(second.get(), ""), Ids());
}

TEST_F(ScenarioMessageRecieverTest, AHandlerThatTakesTheMemoryOfAnotherHearsNothingOfIt) {
  ScenarioHandler* place = first.get();
  reciever.registerHandler(place);
  spawn(100);
  first.reset();
  reciever.registerHandler(place); // as if a new one lay there
  reciever.advanceHandler(place);
  EXPECT_EQ(reciever.getSpawned(place), Ids());
}

TEST_F(ScenarioMessageRecieverTest, OnlyActivatorsAdvanceByThemselves) {
  reciever.registerHandler(first.get());
  spawn(100);
  use(1, 2, "axe1");
  emit(em5::Messages::EM5_CHANGE_SELECTION);
  activate("bell", "101");
  reciever.advanceActivators(first.get());
  EXPECT_EQ(reciever.getActivatorIds(first.get(), "bell"), Ids{101});
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids());
  EXPECT_FALSE(reciever.getSelectionChanged(first.get()));
  EXPECT_EQ(reciever.getEquipmentRecords("axe1", first.get()), (std::pair<Ids, Ids>()));
  reciever.advanceHandler(first.get());
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids{100}) << "it has waited";
}

TEST_F(ScenarioMessageRecieverTest, AUsedCommandWaitsForWhoAsksFirst) {
  reciever.registerHandler(first.get());
  EXPECT_FALSE(reciever.consumeCommand("heal"));
  for (const char* name : {"heal", "carry", "heal"})
    emit(messages::COMMAND_USED, qsf::StringHash(name).getHash());
  for (int tick = 0; tick < 5; ++tick)
    reciever.advanceHandler(first.get());
  EXPECT_FALSE(reciever.consumeCommand("dance"));
  EXPECT_TRUE(reciever.consumeCommand("heal"));
  EXPECT_FALSE(reciever.consumeCommand("heal")) << "all of them are taken at once";
  EXPECT_TRUE(reciever.consumeCommand("carry"));
}

TEST_F(ScenarioMessageRecieverTest, AKeyIsFollowedOnceItIsRegistered) {
  turnKey("A", 1);
  EXPECT_FALSE(reciever.isHotkeyDown("A"));
  reciever.registerHotkey("A");
  EXPECT_FALSE(reciever.isHotkeyDown("A")) << "the message came too early";
  turnKey("A", 7);
  turnKey("B", 1);
  EXPECT_TRUE(reciever.isHotkeyDown("A"));
  EXPECT_FALSE(reciever.isHotkeyDown("B"));
  reciever.registerHotkey("A");
  EXPECT_TRUE(reciever.isHotkeyDown("A")) << "a second registration changes nothing";
  turnKey("A", 0);
  EXPECT_FALSE(reciever.isHotkeyDown("A"));
}

TEST_F(ScenarioMessageRecieverTest, SpeakingIsSentOnAsEquipmentWithItsParameters) {
  reciever.registerHandler(first.get());
  qsf::MessageParameters message(qsf::MessageConfiguration(em5::Messages::EM5_ACTION_SPEAK_TO_PERSON, 1, 2));
  message.setParameter("PolicemanId", std::uint64_t(102));
  message.setParameter("PersonId", std::uint64_t(201));
  send(message);
  reciever.advanceHandler(first.get());
  EXPECT_EQ(reciever.getEquipmentRecords("SpeakToPerson1", first.get()), (std::pair<Ids, Ids>({102}, {201})));
}

TEST_F(ScenarioMessageRecieverTest, AMessageWithTooFewFiltersCostsOneLine) {
  reciever.registerHandler(first.get());
  emit(messages::USE_EQUIPMENT, 1);
  emit(messages::USE_EQUIPMENT);
  emit(messages::COMMAND_USED);
  emit(messages::TRIGGER_ACTIVATOR);
  emit(messages::HOTKEY);
  emit(em5::Messages::EM5_SPAWN_ENTITY);
  reciever.advanceHandler(first.get());
  EXPECT_EQ(host.count(4, "Invalid index for MessageConfiguration::getFilter()"), 6);
  EXPECT_EQ(std::count_if(host.lines.begin(), host.lines.end(), [](const auto& line) { return line.first == 4; }), 6);
  EXPECT_EQ(reciever.getSpawned(first.get()), Ids());
  EXPECT_EQ(reciever.getEquipmentRecords("", first.get()), (std::pair<Ids, Ids>()));
}

TEST_F(ScenarioMessageRecieverTest, TheLivingOneIsFoundAndHearsNothingWhenItIsGone) {
  EXPECT_EQ(ScenarioMessageReciever::get(), &reciever);
  {
    ScenarioMessageReciever other;
    EXPECT_EQ(ScenarioMessageReciever::get(), &other);
  }
  EXPECT_EQ(ScenarioMessageReciever::get(), nullptr);
  spawn(100);
}

}
