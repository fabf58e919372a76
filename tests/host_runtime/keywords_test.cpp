// Which replies select which words of an acedInitGet keyword list.
#include <gtest/gtest.h>

#include "host/runtime/keywords.h"

namespace {

std::wstring picked(const host::KeywordList& list, const wchar_t* reply) {
    return list.match(reply).value_or(L"<none>");
}

TEST(KeywordList, CapitalsAreTheShortestReply) {
    host::KeywordList list(L"LType eXit Width");
    EXPECT_EQ(picked(list, L"lt"), L"LType");
    EXPECT_EQ(picked(list, L"LTY"), L"LType");
    EXPECT_EQ(picked(list, L"ltype"), L"LType");
    EXPECT_EQ(picked(list, L"l"), L"<none>") << "shorter than its capitals";
    EXPECT_EQ(picked(list, L"ltypes"), L"<none>") << "longer than the word";
    EXPECT_EQ(picked(list, L"x"), L"eXit");
    EXPECT_EQ(picked(list, L"exit"), L"eXit");
    EXPECT_EQ(picked(list, L"e"), L"<none>") << "a beginning without the capital";
    EXPECT_EQ(picked(list, L"w"), L"Width");
    EXPECT_EQ(picked(list, L""), L"<none>");
}

TEST(KeywordList, WordsWithoutCapitalsOrAllInCapitalsAreTypedWhole) {
    host::KeywordList list(L"width COLOR");
    EXPECT_EQ(picked(list, L"WIDTH"), L"width");
    EXPECT_EQ(picked(list, L"wid"), L"<none>");
    EXPECT_EQ(picked(list, L"color"), L"COLOR");
    EXPECT_EQ(picked(list, L"col"), L"<none>");
}

TEST(KeywordList, AnExplicitAbbreviationAndTheFirstWordThatFits) {
    host::KeywordList list(L"LTYPE,LT LTSCALE,LTS");
    EXPECT_EQ(picked(list, L"lt"), L"LTYPE");
    EXPECT_EQ(picked(list, L"lty"), L"LTYPE");
    EXPECT_EQ(picked(list, L"lts"), L"LTSCALE");
    EXPECT_EQ(picked(list, L"l"), L"<none>");
}

TEST(KeywordList, LocalWordsAnswerTheirGlobalCounterparts) {
    host::KeywordList list(L"Ja Nein _ Yes No");
    EXPECT_EQ(picked(list, L"j"), L"Yes");
    EXPECT_EQ(picked(list, L"nein"), L"No");
    EXPECT_EQ(picked(list, L"_no"), L"No");
    EXPECT_EQ(picked(list, L"_y"), L"Yes");
    EXPECT_EQ(picked(list, L"_j"), L"<none>") << "an underscore reply is matched against the global words";
    EXPECT_TRUE(host::KeywordList(L"   ").empty());
}

}  // namespace
