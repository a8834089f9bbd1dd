#include "apps/tidemark/session/Languages.h"

#include <gtest/gtest.h>

namespace tidemark {

namespace {

TEST(LanguageCodes, AreTwoOrThreeLettersPerhapsWithARegion) {
  for (const char* code : {"en", "de", "EN", "gsw", "pt-BR", "pt_br", "zh-Hant", "en-USA"})
    EXPECT_TRUE(isLanguageCode(code)) << code;
}

TEST(LanguageCodes, AreNothingElse) {
  for (const char* text : {"", "e", "english", "e1", "12", "../en", "en/", "d\xC3\xA4", " en", "en "})
    EXPECT_FALSE(isLanguageCode(text)) << text;
}

TEST(LanguageCodes, HaveOneRegionOfLettersOnly) {
  for (const char* text : {"en-", "en_", "-US", "en-U", "en-Latin", "en-419", "en-US-x", "en--US", "en.US"})
    EXPECT_FALSE(isLanguageCode(text)) << text;
}

}

}
