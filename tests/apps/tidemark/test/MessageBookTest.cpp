#include "apps/tidemark/test/MessageBook.h"

#include <gtest/gtest.h>

namespace tidemark::test {

namespace {

using Filters = std::vector<std::uint64_t>;

TEST(MessageBook, CountsByLeadingFilters) {
  MessageBook book;
  book.watch(1);
  book.add(1, Filters{100, 5});
  book.add(1, Filters{100, 6});
  book.add(1, Filters{100, 6});
  book.add(1, Filters{101});
  book.add(1, Filters{});
  EXPECT_EQ(book.count(1, Filters{}), 5u);
  EXPECT_EQ(book.count(1, Filters{100}), 3u);
  EXPECT_EQ(book.count(1, Filters{100, 6}), 2u);
  EXPECT_EQ(book.count(1, Filters{101, 6}), 0u) << "a message with fewer filters isn't meant";
  EXPECT_EQ(book.describe(1), "() (100, 5) (100, 6) (101)");
}

TEST(MessageBook, KeepsWhatIsWatchedOnly) {
  MessageBook book;
  book.watch(1);
  book.add(2, Filters{100});
  EXPECT_EQ(book.count(2, Filters{}), 0u);
  EXPECT_EQ(book.describe(2), "none");
  EXPECT_EQ(book.describe(1), "none");
}

}

}
