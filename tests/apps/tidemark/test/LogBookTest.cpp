#include "apps/tidemark/test/LogBook.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tidemark::test {

namespace {

constexpr int INFO = 2, WARNING = 3;

LogBook sampleBook() {
  LogBook book;
  for (int i = 0; i < 20; ++i)
    book.add(INFO, "line " + std::to_string(i), static_cast<std::uint64_t>(i));
  book.add(WARNING, "a door is stuck", 20);
  return book;
}

TEST(LogBook, CountsWholeMessagesOfASeverity) {
  const LogBook book = sampleBook();
  EXPECT_EQ(book.count({INFO, "line 1", LogPattern::Extent::WHOLE}), 1u);
  EXPECT_EQ(book.count({WARNING, "line 1", LogPattern::Extent::WHOLE}), 0u);
  EXPECT_EQ(book.count({LogPattern::ANY_SEVERITY, "line 1", LogPattern::Extent::WHOLE}), 1u);
}

TEST(LogBook, CountsMessagesThatContainAText) {
  EXPECT_EQ(sampleBook().count({INFO, "line 1", LogPattern::Extent::PART}), 11u);
}

TEST(LogBook, FindsTheFirst) {
  EXPECT_EQ(sampleBook().find({INFO, "line 1", LogPattern::Extent::PART}), 1u);
  EXPECT_EQ(sampleBook().find({INFO, "none", LogPattern::Extent::PART}), std::nullopt);
}

TEST(LogBook, ShowsTheLinesRoundAMatch) {
  const auto lines = sampleBook().around({INFO, "line 10", LogPattern::Extent::WHOLE});
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_NE(lines.front().find("line 6"), std::string::npos);
  EXPECT_EQ(lines[4][0], '>');
  EXPECT_NE(lines[4].find("line 10"), std::string::npos);
}

TEST(LogBook, ShowsTheNearestLineIfNoneMatches) {
  const auto lines = sampleBook().around({INFO, "a door is shut", LogPattern::Extent::WHOLE});
  const auto marked = std::find_if(lines.begin(), lines.end(), [](const std::string& line) { return line[0] == '>'; });
  ASSERT_NE(marked, lines.end());
  EXPECT_NE(marked->find("a door is stuck"), std::string::npos);
}

TEST(LogBook, SeveritiesAreNamed) {
  EXPECT_EQ(parseSeverity("TRACE"), 0);
  EXPECT_EQ(parseSeverity("NONE"), 5);
  EXPECT_EQ(parseSeverity("ANY"), LogPattern::ANY_SEVERITY);
  EXPECT_EQ(parseSeverity("info"), std::nullopt);
}

}

}
