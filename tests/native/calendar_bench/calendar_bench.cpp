// Growth of the calendar's per-date work, which must stay linear in the
// number of dates: MarkRange over 1 and 10 years, then IsMarked and
// MatchSpecial for every cell of those 12 and 120 months. The figure is the
// time of the large case over the small one, measured in the same process;
// linear work gives about 10, and the test fails when it passes 12.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>

#include "calendar/core/calendar_model.h"

namespace {

using zk::cal::CalendarModel;
using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

constexpr double kBound = 12.0;
constexpr int kFirstYear = 2000;

struct Outcome {
    long markedCells = 0, specialCells = 0;
};

// One rule of every kind, so that MatchSpecial looks up every key of a cell.
void AddRules(CalendarModel &cal) {
    const CDateTime d(2001, 5, 13); // the second Sunday of May
    for (int type = SPECIAL_Date; type <= SPECIAL_YearWeekday; ++type)
        cal.SetSpecialRule(SSpecialRule(type, d, 1, 2, 0x10, 0x20), 1);
}

Outcome Run(int years) {
    CalendarModel cal;
    AddRules(cal);
    cal.SetStyle(CALS_MultipleSelection, 1);
    cal.MarkRange(CDateTime(kFirstYear, 1, 1), CDateTime(kFirstYear + years - 1, 12, 31), 1, 0);
    Outcome out;
    for (int year = kFirstYear; year < kFirstYear + years; ++year) {
        for (int month = 1; month <= 12; ++month) {
            cal.SetDisplayMonth(year, month, 0);
            for (int cell = 0; cell < zk::cal::kCellCount; ++cell) {
                const CDateTime date = cal.CellToDate(cell);
                out.markedCells += cal.IsMarked(date);
                const int day = date.GetDay();
                const SSpecialRule probe(0, date, date.GetWeekday(), day > 0 ? (day - 1) / 7 + 1 : 0, 0, 0);
                out.specialCells += cal.MatchSpecial(probe, nullptr, nullptr);
            }
        }
    }
    return out;
}

// Processor seconds of one run, over `repeats` runs timed together: the
// processor's time, not the clock's, so that other programs on a busy
// machine do not count.
double Seconds(int years, int repeats, Outcome &out) {
    const std::clock_t start = std::clock();
    for (int i = 0; i < repeats; ++i)
        out = Run(years);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / repeats;
}

TEST(CalendarBench, MarksAndRulesGrowLinearlyWithTheDates) {
    // Ten small runs are timed together, so that each timing spans about
    // as long as one large run and both suffer a busy machine alike.
    constexpr int kRounds = 5, kSmallRepeats = 10;
    double small = 1e30, large = 1e30;
    Outcome one, ten;
    // Small and large in turn, so that a slow spell of a busy machine falls
    // on both alike; the best times count.
    for (int round = 0; round < kRounds; ++round) {
        small = std::min(small, Seconds(1, kSmallRepeats, one));
        large = std::min(large, Seconds(10, 1, ten));
    }
    // Every cell of a month inside the marked years is marked but for the
    // extra cells before January of the first year and after December of
    // the last.
    EXPECT_EQ(one.markedCells, 12 * 42 - 6 - 6) << "six days of December 1999 before, six of January 2001 after";
    EXPECT_GT(ten.specialCells, 10 * one.specialCells / 2);
    const double ratio = large / small;
    std::printf("  1 year %8.4f s  10 years %8.4f s  (best of %d)\n", small, large, kRounds);
    std::printf("ratio calendar MarkRange+IsMarked+MatchSpecial 10y/1y %6.2f (bound %.0f)%s\n", ratio, kBound,
                ratio <= kBound ? "" : "  TOO SLOW");
    EXPECT_LE(ratio, kBound);
}

} // namespace
