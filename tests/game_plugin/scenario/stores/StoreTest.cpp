#include "game_plugin/scenario/stores/Store.h"

#include <gtest/gtest.h>

#include <stdexcept>

using script::Store;
using script::StoreMarks;

namespace {

constexpr std::size_t NOT_FOUND = Store<float>::NOT_FOUND;

TEST(StoreTest, TheFirstEntryOfANameWinsHoweverManyThereAre) {
  Store<float> store;
  store.append("twice", 1);
  store.append("twice", 2);
  EXPECT_EQ(store.find("twice"), 0u);
  for (int i = 0; i < 100; ++i)
    store.findOrAppend("name " + std::to_string(i));
  EXPECT_EQ(store.find("twice"), 0u);
  EXPECT_EQ(store.find("name 57"), 59u);
  EXPECT_EQ(store.find("name 100"), NOT_FOUND);
  EXPECT_EQ(store.size(), 102u);
}

TEST(StoreTest, AnEraseMovesTheEntriesBehindAndChangesTheEpoch) {
  Store<float> store;
  for (int i = 0; i < 20; ++i)
    store.append("name " + std::to_string(i), static_cast<float>(i));
  const std::uint32_t epoch = store.epoch();
  EXPECT_EQ(store.find("name 7"), 7u);
  store.append("one more", 0);
  EXPECT_EQ(store.epoch(), epoch) << "appending moves nothing";
  store.erase(3);
  EXPECT_NE(store.epoch(), epoch);
  EXPECT_EQ(store.find("name 3"), NOT_FOUND);
  EXPECT_EQ(store.find("name 7"), 6u);
  EXPECT_EQ(store.value(6), 7);
  EXPECT_THROW(store.erase(20), std::out_of_range);
}

TEST(StoreTest, NoTwoStoresShareAnEpoch) { EXPECT_NE(Store<float>().epoch(), Store<std::string>().epoch()); }

TEST(StoreTest, WithOneMarkTheEncodingOfANameIsNoMatter) {
  Store<float> store(StoreMarks::ONE);
  const std::size_t written = store.append("\xA7"
                                           "a\xA7\xA7",
                                           1);
  EXPECT_EQ(store.name(written), "\xC2\xA7"
                                 "a\xC2\xA7\xC2\xA7");
  EXPECT_EQ(store.find("\xC2\xA7"
                       "a\xC2\xA7\xC2\xA7"),
            written);
  EXPECT_EQ(store.find("\xA7"
                       "a\xA7\xA7"),
            written);
  EXPECT_EQ(store.findOrAppend("\xC2\xA7"
                               "a\xC2\xA7\xC2\xA7"),
            written);
  EXPECT_EQ(store.size(), 1u);
}

TEST(StoreTest, WithOneMarkOtherCharactersThatEndWithItsByteStay) {
  Store<float> store(StoreMarks::ONE);
  for (const char* name : {"\xC3\xA7", "x\xC3\xA7y", "\xE2\x82\xA7", "\xF0\x9F\x9A\xA7"}) {
    store.append(name, 0);
    EXPECT_EQ(store.name(store.size() - 1), name);
  }
  EXPECT_EQ(store.find("\xA7"), NOT_FOUND);
}

TEST(StoreTest, ALocalStoreKeepsNamesAsWritten) {
  Store<float> store;
  store.append("\xA7", 1);
  EXPECT_EQ(store.name(0), "\xA7");
  EXPECT_EQ(store.find("\xC2\xA7"), NOT_FOUND);
}

}
