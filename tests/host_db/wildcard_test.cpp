// acutWcMatch against the documented examples of the editor's wildcard syntax, and the cases
// that follow from its stated rules.
#include <gtest/gtest.h>

#include <string>

#include "acutads.h"

namespace {

struct Case {
    const wchar_t* text;
    const wchar_t* pattern;
    bool match;
};

const wchar_t* kSentence = L"this is a string - test1 test2 the end";

const Case kDocumented[] = {
    {L"Name", L"N*", true},
    {L"Name", L"???,~*m*,N*", true},
    {L"Name", L"*`,*", false},
    {L"Name", L"*`\\*", false},
    {kSentence, L"this*", true},
    {kSentence, L"*test[4-69]*", false},
    {kSentence, L"*test[4-61]*", true},
    {kSentence, L"ABC,XYZ*,*end", true},
    {L"STR1", L"STR[1-38]", true},
    {L"STR2", L"STR[1-38]", true},
    {L"STR3", L"STR[1-38]", true},
    {L"STR8", L"STR[1-38]", true},
    {L"STR4", L"STR[1-38]", false},
    {L"STR5", L"STR[1-38]", false},
    {L"STR6", L"STR[1-38]", false},
    {L"STR7", L"STR[1-38]", false},
};

// Cases derived from the rules: negated classes, escapes, literal ~ - ] in classes, case.
const Case kDerived[] = {
    {L"XC", L"[~AB]C", true},
    {L"AC", L"[~AB]C", false},
    {L"~AB", L"`~AB", true},
    {L"*U2", L"`*U2", true},
    {L"XU2", L"`*U2", false},
    {L"A", L"[A~BC]", true},
    {L"~", L"[A~BC]", true},
    {L"-", L"[-ABC]", true},
    {L"-", L"[ABC-]", true},
    {L"-", L"[~-ABC]", false},
    {L"X", L"[~-ABC]", true},
    {L"]", L"[]ABC]", true},
    {L"]", L"[~]ABC]", false},
    {L"name", L"N*", false},
    {L"", L"*", true},
    {L"", L"", true},
    {L"a", L"", false},
    {L"abc", L"~", true},
    {L"7", L"#", true},
    {L"x", L"#", false},
    {L"x", L"@", true},
    {L"7", L"@", false},
    {L"-", L".", true},
    {L"x", L".", false},
    {L"风", L"@", true},
    {L"a,b", L"a`,b", true},
    {L"P01-AB", L"[JPRXI]##-@@", true},
    {L"$P01-AB", L"$[PJRXI]##-@@", true},
    {L"$P01-A1", L"$[PJRXI]##-@@", false},
    {L"C201-1", L"[cC]2##-#", true},
    {L"c212-3", L"[cC]2##-#", true},
    {L"C2011-1", L"[cC]2##-#", false},
    {L"F1234-B2", L"[FTIBSJGD][0-z][0-z][0-z][0-z]-A,[FTIBSJGD][0-z][0-z][0-z][0-z]-B[1-4]", true},
    {L"F1234-B5", L"[FTIBSJGD][0-z][0-z][0-z][0-z]-A,[FTIBSJGD][0-z][0-z][0-z][0-z]-B[1-4]", false},
    {L"_PLB2", L"_PLB[ABCDE2]", true},
    {L"abc", L"a*c*", true},
    {L"abxbxc", L"a*b?c", true},
    {L"[x", L"[x", true},
    {L"5", L"[9-0]", false},
};

TEST(WildcardMatch, DocumentedAndDerivedCases) {
    for (const Case& c : kDocumented)
        EXPECT_EQ(acutWcMatch(c.text, c.pattern), c.match ? RTNORM : RTERROR)
            << "documented case " << (&c - kDocumented);
    for (const Case& c : kDerived)
        EXPECT_EQ(acutWcMatch(c.text, c.pattern), c.match ? RTNORM : RTERROR)
            << "derived case " << (&c - kDerived);
}

TEST(WildcardMatch, NullArgumentsAreErrors) {
    EXPECT_EQ(acutWcMatch(nullptr, L"*"), RTERROR);
    EXPECT_EQ(acutWcMatch(L"a", nullptr), RTERROR);
}

TEST(WildcardMatch, OnlyTheFirst500CharactersCount) {
    std::wstring longText(600, L'a');
    std::wstring pattern(500, L'a');
    EXPECT_EQ(acutWcMatch(longText.c_str(), pattern.c_str()), RTNORM);
}

}  // namespace
