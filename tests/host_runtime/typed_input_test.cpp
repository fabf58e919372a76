// The get-functions answered from the console's queue of typed replies: values, bare Enter,
// refused replies with the editor's messages, acedInitGet's bits and keywords, cancellation.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "acedads.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;

constexpr double kPi = 3.14159265358979323846;

class TypedInput : public HostSession {
protected:
    // Queues replies written as in a script: (host-input REPLIES).
    void reply(const std::wstring& replies) { ASSERT_EQ(eval(L"(host-input " + replies + L")"), L"T"); }
};

TEST_F(TypedInput, ARealAfterARefusedReply) {
    reply(L"\"abc\" \"2.5\"");
    ads_real v = 0;
    EXPECT_EQ(acedGetReal(L"\nValue: ", &v), RTNORM);
    EXPECT_EQ(v, 2.5);
    EXPECT_EQ(printed(), L"\nValue: \nRequires numeric value.\nValue: ");
}

TEST_F(TypedInput, EnterIsNoneUnlessForbiddenAndAnEmptyQueueCancels) {
    reply(L"nil nil 4");
    ads_real v = -1;
    EXPECT_EQ(acedGetReal(L"\nA: ", &v), RTNONE);
    EXPECT_EQ(v, -1) << "nothing is written for RTNONE";
    acedInitGet(RSG_NONULL, nullptr);
    EXPECT_EQ(acedGetReal(L"\nB: ", &v), RTNORM);
    EXPECT_EQ(v, 4.0);
    clearOutput();
    EXPECT_EQ(acedGetReal(L"\nC: ", &v), RTCAN);
    EXPECT_EQ(printed(), L"\nC: *Cancel*\n");
}

TEST_F(TypedInput, InitGetBitsCheckTheValueForTheNextRequestOnly) {
    ads_real v = 0;
    reply(L"0 -3 4");
    acedInitGet(RSG_NOZERO | RSG_NONEG, nullptr);
    EXPECT_EQ(acedGetReal(L"\nL: ", &v), RTNORM);
    EXPECT_EQ(v, 4.0);
    EXPECT_EQ(printed(), L"\nL: \nValue must be positive and nonzero.\nL: \nValue must be positive and nonzero.\nL: ");

    reply(L"0 -1");
    acedInitGet(RSG_NOZERO, nullptr);
    clearOutput();
    EXPECT_EQ(acedGetReal(L"\nL: ", &v), RTNORM);
    EXPECT_EQ(v, -1.0);
    EXPECT_EQ(printed(), L"\nL: \nValue must be nonzero.\nL: ");

    reply(L"-2 0 nil");
    acedInitGet(RSG_NONEG, nullptr);
    clearOutput();
    EXPECT_EQ(acedGetReal(L"\nL: ", &v), RTNORM);
    EXPECT_EQ(v, 0.0);
    EXPECT_EQ(printed(), L"\nL: \nValue must be positive.\nL: ");
    EXPECT_EQ(acedGetReal(L"\nL: ", &v), RTNONE) << "the bits were for one request";
}

TEST_F(TypedInput, KeywordsAnswerRtkwordAndAreReadWithGetInput) {
    ads_real v = 0;
    ACHAR keyword[132] = L"";
    reply(L"\"x\" \"tw\"");
    acedInitGet(RSG_NONULL, L"Pi Two-pi");
    EXPECT_EQ(acedGetReal(L"\nPi/Two-pi/<number>: ", &v), RTKWORD);
    ASSERT_EQ(acedGetInput(keyword), RTNORM);
    EXPECT_STREQ(keyword, L"Two-pi");
    EXPECT_EQ(printed(), L"\nPi/Two-pi/<number>: \nRequires numeric value.\nPi/Two-pi/<number>: ");

    reply(L"\"whatever\"");
    acedInitGet(RSG_OTHER, nullptr);
    EXPECT_EQ(acedGetReal(nullptr, &v), RTKWORD) << "arbitrary input";
    ASSERT_EQ(acedGetInput(keyword), RTNORM);
    EXPECT_STREQ(keyword, L"whatever");

    reply(L"7");
    EXPECT_EQ(acedGetReal(nullptr, &v), RTNORM);
    EXPECT_EQ(acedGetInput(keyword), RTERROR) << "only right after RTKWORD";
}

TEST_F(TypedInput, IntegersAreSixteenBit) {
    int v = 0;
    reply(L"2.5 \"40000\" \"-12\"");
    EXPECT_EQ(acedGetInt(L"\nN: ", &v), RTNORM);
    EXPECT_EQ(v, -12);
    EXPECT_EQ(printed(), L"\nN: \nRequires an integer value.\nN: \nRequires an integer between -32768 and 32767.\nN: ");
}

TEST_F(TypedInput, DistancesTypedOrShownByPoints) {
    ads_real d = 0;
    ads_point base = {1, 1, 0};
    reply(L"'(4 5 12)");
    EXPECT_EQ(acedGetDist(base, nullptr, &d), RTNORM);
    EXPECT_DOUBLE_EQ(d, std::sqrt(3.0 * 3 + 4 * 4 + 12 * 12));

    reply(L"'(4 5 12)");
    acedInitGet(RSG_2D, nullptr);
    EXPECT_EQ(acedGetDist(base, nullptr, &d), RTNORM);
    EXPECT_DOUBLE_EQ(d, 5.0) << "the z difference is left out";

    reply(L"\"0,0\" \"6,8\"");
    clearOutput();
    EXPECT_EQ(acedGetDist(nullptr, L"\nDistance: ", &d), RTNORM);
    EXPECT_DOUBLE_EQ(d, 10.0);
    EXPECT_EQ(printed(), L"\nDistance: \nSpecify second point: ");

    reply(L"\"12.5\"");
    EXPECT_EQ(acedGetDist(nullptr, nullptr, &d), RTNORM);
    EXPECT_DOUBLE_EQ(d, 12.5);
}

TEST_F(TypedInput, AnglesFollowAunitsAngdirAndAngbase) {
    ads_real a = 0;
    reply(L"90");
    EXPECT_EQ(acedGetAngle(nullptr, nullptr, &a), RTNORM);
    EXPECT_DOUBLE_EQ(a, kPi / 2);

    ASSERT_EQ(eval(L"(setvar \"ANGDIR\" 1)"), L"1");
    reply(L"90");
    EXPECT_EQ(acedGetAngle(nullptr, nullptr, &a), RTNORM);
    EXPECT_DOUBLE_EQ(a, 3 * kPi / 2) << "clockwise 90 degrees is counter-clockwise 270";
    ASSERT_EQ(eval(L"(setvar \"ANGDIR\" 0)"), L"0");

    ASSERT_EQ(eval(L"(setvar \"AUNITS\" 3)"), L"3");
    reply(L"\"1\"");
    EXPECT_EQ(acedGetAngle(nullptr, nullptr, &a), RTNORM);
    EXPECT_DOUBLE_EQ(a, 1.0) << "radians as typed";

    resbuf angbase{};
    angbase.restype = RTREAL;
    angbase.resval.rreal = kPi / 2;
    ASSERT_EQ(acedSetVar(L"ANGBASE", &angbase), RTNORM);
    ads_point base = {0, 0, 0};
    reply(L"'(-1 1)");
    EXPECT_EQ(acedGetAngle(base, nullptr, &a), RTNORM);
    EXPECT_NEAR(a, std::atan2(1.0, -1.0) - kPi / 2, 1e-12) << "measured from ANGBASE";
}

TEST_F(TypedInput, CornersArePoints) {
    ads_point base = {0, 0, 0}, corner = {0, 0, 0};
    reply(L"5 \"3,4\" '(1 2 3)");
    EXPECT_EQ(acedGetCorner(base, L"\nOther corner: ", corner), RTNORM);
    EXPECT_EQ(corner[0], 3.0);
    EXPECT_EQ(corner[1], 4.0);
    EXPECT_EQ(corner[2], 0.0);
    EXPECT_EQ(printed(), L"\nOther corner: \nInvalid point.\nOther corner: ");
    EXPECT_EQ(acedGetCorner(base, nullptr, corner), RTNORM);
    EXPECT_EQ(corner[2], 3.0);
    EXPECT_EQ(acedGetCorner(nullptr, nullptr, corner), RTERROR) << "the first corner is required";
}

TEST_F(TypedInput, KeywordRequests) {
    ACHAR result[132] = L"";
    reply(L"\"maybe\" \"n\"");
    acedInitGet(0, L"Yes No");
    EXPECT_EQ(acedGetKword(L"\n[Yes/No]: ", result), RTNORM);
    EXPECT_STREQ(result, L"No");
    EXPECT_EQ(printed(), L"\n[Yes/No]: \nInvalid option keyword.\n[Yes/No]: ");

    reply(L"nil \"_y\"");
    acedInitGet(RSG_NONULL, L"Ja Nein _ Yes No");
    EXPECT_EQ(acedGetKword(nullptr, result), RTNORM);
    EXPECT_STREQ(result, L"Yes");

    reply(L"nil");
    acedInitGet(0, L"Yes No");
    EXPECT_EQ(acedGetKword(nullptr, result), RTNONE);
    EXPECT_STREQ(result, L"");
}

TEST_F(TypedInput, StringsEndAtASpaceUnlessSpacesAreAllowed) {
    ACHAR text[133] = L"";
    reply(L"\"two words\" \"two words\" nil 42");
    EXPECT_EQ(acedGetString(0, nullptr, text), RTNORM);
    EXPECT_STREQ(text, L"two");
    EXPECT_EQ(acedGetString(1, nullptr, text), RTNORM);
    EXPECT_STREQ(text, L"two words");
    acedInitGet(RSG_NONULL, nullptr);
    EXPECT_EQ(acedGetString(1, nullptr, text), RTNORM) << "acedGetString heeds no bits";
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(acedGetString(1, nullptr, text), RTNORM);
    EXPECT_STREQ(text, L"42");

    std::wstring longText(140, L'a');
    reply(L"\"" + longText + L"\"");
    EXPECT_EQ(acedGetString(1, nullptr, text), RTINPUTTRUNCATED);
    EXPECT_EQ(std::wstring(text), std::wstring(132, L'a'));
}

TEST_F(TypedInput, ScriptsAskThroughTheSameFunctions) {
    reply(L"\"abc\" 3.5 \"lt\" nil");
    EXPECT_EQ(eval(L"(getreal \"\\nR: \")"), L"3.5");
    EXPECT_EQ(eval(L"(progn (initget \"LType Width\") (getkword \"\\nK: \"))"), L"\"LType\"");
    EXPECT_EQ(eval(L"(getint)"), L"nil");
    EXPECT_EQ(eval(L"(getdist '(0 0) \"\\nD: \")"), L"; error: Function cancelled");
    EXPECT_EQ(printed(), L"\nR: \nRequires numeric value.\nR: \nK: \nD: *Cancel*\n");
}

}  // namespace
