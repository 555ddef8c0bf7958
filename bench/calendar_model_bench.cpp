// Growth of the calendar's per-date work, which must stay linear in the
// number of dates: MarkRange over 1 and 10 years, then IsMarked and
// MatchSpecial for every cell of those 12 and 120 months. The figure is the
// time of the large case over the small one, in the same process (the
// medians of five samples, a sample of the small case the mean of ten runs):
// linear work gives about 10; bound 12. The program fails only when the
// marks or the rules come out wrong. The model runs in this program, on
// the host's date arithmetic, as the library runs it.
#include <windows.h>

#include <cstdio>

#include "bench.h"
#include "calendar/core/calendar_model.h"
#include "calendar/win/calendar_bootstrap.h"

namespace {

using namespace bench;
using zk::cal::CalendarModel;
using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

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

Outcome Walk(int years) {
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

} // namespace

int main(int argc, char **argv) {
    Run run("bench_calendar_model", argc, argv);
    zk::cal::BindDatesToHost();
    Outcome one, ten;
    const Growth growth = MeasureGrowth(
        run.Size(1, 5), run.Size(1, 10), [&] { return TimeOf([&] { one = Walk(1); }); },
        [&] { return TimeOf([&] { ten = Walk(run.Size(2, 10)); }); });
    // Every cell of a month inside the marked years is marked but for the
    // extra cells before January of the first year and after December of
    // the last.
    if (one.markedCells != 12 * 42 - 6 - 6)
        run.Wrong("%ld cells marked in one year, expected %d", one.markedCells, 12 * 42 - 6 - 6);
    run.Check(ten.specialCells > one.specialCells, "the rules match fewer cells over more years");
    std::printf("  1 year %8.4f s, %d years %8.4f s\n", growth.small, run.Size(2, 10), growth.large);
    run.Figure("calendar MarkRange+IsMarked+MatchSpecial 10y/1y", growth.Ratio(), Want::AtMost, 12);
    return run.Finish();
}
