// The name exports, the library's string resources, and the date-time
// checks of the property dialogs.
#include "calendar/win/date_field_checks.h"
#include "calendar_support.h"

namespace {

using caltest::CalendarExports;
using caltest::Strings;

std::vector<std::wstring> Words(const wchar_t *stem, int count) {
    std::vector<std::wstring> words;
    for (int i = 1; i <= count; ++i)
        words.push_back(stem + std::to_wstring(i));
    return words;
}

std::wstring Resource(UINT id) {
    const wchar_t *text = nullptr;
    const int length = LoadStringW(GetModuleHandleW(L"ZKLIB.dll"), id, reinterpret_cast<wchar_t *>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : L"<missing>";
}

TEST(CalendarResources, MonthAndWeekdayNamesAndTheWordsOfTheChecks) {
    const wchar_t *months[] = {L"January", L"February", L"March",     L"April",   L"May",      L"June",
                               L"July",    L"August",   L"September", L"October", L"November", L"December"};
    for (UINT i = 0; i < 12; ++i)
        EXPECT_EQ(Resource(16 + i), months[i]);
    const wchar_t *weekdays[] = {L"Sunday", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday"};
    for (UINT i = 0; i < 7; ++i)
        EXPECT_EQ(Resource(32 + i), weekdays[i]);
    EXPECT_EQ(Resource(64), L"'%1' is not a valid date/time picture.");
    EXPECT_EQ(Resource(65), L"'%1' is not a valid date/time.");
    EXPECT_EQ(Resource(69), L"Maximum must be greater than or equal to minimum.");
}

// The names are the process's: each test puts the resource names back.
class NameExports : public CalendarExports {
protected:
    void TearDown() override {
        const HostArray months = Own(Strings({L"January", L"February", L"March", L"April", L"May", L"June", L"July",
                                              L"August", L"September", L"October", L"November", L"December"}));
        const HostArray weekdays =
            Own(Strings({L"Sunday", L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday"}));
        EXPECT_EQ(ZelCalSetMonths(control(), months), 1);
        EXPECT_EQ(ZelCalSetWeekDays(control(), weekdays), 1);
        CalendarExports::TearDown();
    }
};

TEST_F(NameExports, ExactlyTwelveMonthsAndSevenWeekdays) {
    zkt::DebugOutputCapture capture;
    for (int count : {11, 13})
        EXPECT_EQ(ZelCalSetMonths(control(), Own(Strings(Words(L"m", count)))), 0) << count;
    EXPECT_EQ(ZelCalSetMonths(control(), Own(Strings(Words(L"m", 12), 5))), 1) << "from any low bound";
    EXPECT_EQ(ZelCalSetWeekDays(control(), Own(Strings(Words(L"w", 6)))), 0);
    EXPECT_EQ(ZelCalSetWeekDays(control(), Own(Strings(Words(L"w", 7)))), 1);
    EXPECT_EQ(capture.lines(),
              (std::vector<std::wstring>{L"ZelCalSetMonths() - Unable to assign text for month names.",
                                         L"ZelCalSetMonths() - Unable to assign text for month names.",
                                         L"ZelCalSetWeekDays() - Unable to assign text for weekday names."}));
}

TEST_F(NameExports, AnElementWithoutAStringFails) {
    const HostArray names = Own(Strings(Words(L"w", 7)));
    HostArraySetString(names, 0, 3);
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelCalSetWeekDays(control(), names), 0);
    EXPECT_EQ(capture.text(), L"ZelCalSetWeekDays() - Unable to assign text for weekday names.\n");
}

TEST(CalendarDateChecks, OnlyWhileSavingAndEmptyPassesUnlessEnforced) {
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_TRUE(zk::cal::DDV_DateTimePicture(true, L"yyyy-MM-dd", 1));
    EXPECT_TRUE(zk::cal::DDV_DateTimeValue(true, L"2024-03-15", 1));
    EXPECT_TRUE(zk::cal::DDV_DateTimePicture(false, L"not a picture", 1)) << "loading checks nothing";
    EXPECT_TRUE(zk::cal::DDV_DateTimeValue(true, L"", 0));
    EXPECT_TRUE(zk::cal::DDV_DateTimePicture(true, L"", 2));
    EXPECT_EQ(answerer.answered(), 0);
}

TEST(CalendarDateChecks, AFailedCheckTellsTheUserWithTheText) {
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_FALSE(zk::cal::DDV_DateTimePicture(true, L"qqq", 1));
    EXPECT_FALSE(zk::cal::DDV_DateTimeValue(true, L"31st of Nevember", 0));
    EXPECT_FALSE(zk::cal::DDV_DateTimeValue(true, L"", 1)) << "an enforced empty text is no date";
    ASSERT_EQ(answerer.answered(), 3);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Zelkova Kit Library");
    EXPECT_EQ(answerer.dialogs()[0].StaticTexts().back(), L"'qqq' is not a valid date/time picture.");
    EXPECT_EQ(answerer.dialogs()[1].StaticTexts().back(), L"'31st of Nevember' is not a valid date/time.");
    EXPECT_EQ(answerer.dialogs()[2].StaticTexts().back(), L"'' is not a valid date/time.");
}

} // namespace
