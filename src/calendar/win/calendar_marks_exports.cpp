// Exports of the marked dates.
#include "calendar/win/calendar_exports.h"

using zk::GuardedControlText;
using zk::cal::CalendarModel;
using zk::cal::CalendarOf;
using zk::cal::DateArg;

extern "C" {

int32_t ZKAPI ZelCalClearMarked(ZelCalControl control) {
    return GuardedControlText(L"ZelCalClearMarked()", L"Unable to clear selected dates.", 0, CalendarOf(control),
                              [](CalendarModel &c) { return c.ClearMarks(1); });
}

int32_t ZKAPI ZelCalMarkDate(ZelCalControl control, HostDateTime date, int32_t add) {
    return GuardedControlText(L"ZelCalMarkDate()", L"Unable to add/remove date from selection list.", 0,
                              CalendarOf(control),
                              [&](CalendarModel &c) { return c.MarkDate(DateArg(date), add, 1, 1); });
}

// Each date goes through ZelCalMarkDate; the count is of those that changed the set.
int32_t ZKAPI ZelCalMarkDates(ZelCalControl control, HostArray dates, int32_t add) {
    return GuardedControlText(L"ZelCalMarkDates()", L"Unable to add/remove multiple dates from selection list.", 0,
                              CalendarOf(control), [&](CalendarModel &) {
                                  int32_t low = 0, high = -1;
                                  const int32_t count = HostArrayGetBounds(dates, &low, &high);
                                  int32_t changed = 0;
                                  for (int32_t i = 0; i < count; ++i) {
                                      HostDateTime date{};
                                      HostArrayGetDateTime(dates, &date, low + i);
                                      if (ZelCalMarkDate(control, date, add) == 1)
                                          ++changed;
                                  }
                                  return changed;
                              });
}

int32_t ZKAPI ZelCalIsDateMarked(ZelCalControl control, HostDateTime date) {
    return GuardedControlText(L"ZelCalIsDateMarked()", L"Unable to determine if specified date is marked.", 0,
                              CalendarOf(control), [&](CalendarModel &c) { return c.IsMarked(DateArg(date)); });
}

// The dates in the store's own order from index 0; the array ends after them.
int32_t ZKAPI ZelCalGetMarked(ZelCalControl control, HostArray dates) {
    return GuardedControlText(L"ZelCalGetMarked()", L"Unable to retrieve marked dates.", -1, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  int32_t count = 0;
                                  for (const auto &mark : c.Marks()) {
                                      HostDateTime record{};
                                      mark.second.GetRecord(&record);
                                      HostArraySetDateTime(dates, &record, count++);
                                  }
                                  HostArraySetBounds(dates, 0, count - 1);
                                  return count;
                              });
}

} // extern "C"
