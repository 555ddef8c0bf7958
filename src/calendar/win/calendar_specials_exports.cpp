// Exports of the special rules.
#include "calendar/win/calendar_exports.h"
#include "frame/core/errors.h"

using zk::GuardedControlText;
using zk::cal::CalendarModel;
using zk::cal::CalendarOf;
using zk::cal::CDateTime;
using zk::cal::DateArg;
using zk::cal::SSpecialRule;

namespace {

// The kinds that key on a field taken from the rule's date: a null date
// cannot give them one.
bool KeysOnDate(int32_t type) {
    return type == SPECIAL_Date || type == SPECIAL_MonthDay || type == SPECIAL_YearDay || type == SPECIAL_YearWeekday;
}

void SetNumber(HostArray array, int32_t value, int32_t index) {
    HostNumber number{};
    HostNumberFromShort(value, &number);
    HostArraySetNumber(array, &number, index);
}

} // namespace

extern "C" {

int32_t ZKAPI ZelCalClearSpecials(ZelCalControl control) {
    // The name it reports has no final s.
    return GuardedControlText(L"ZelCalClearSpecial()", L"Unable to clear special dates.", 0, CalendarOf(control),
                              [](CalendarModel &c) { return c.ClearSpecials(1); });
}

int32_t ZKAPI ZelCalSpecialDate(ZelCalControl control, int32_t type, HostDateTime date, int32_t weekday, int32_t week,
                                COLORREF textColor, COLORREF backColor, int32_t add) {
    return GuardedControlText(L"ZelCalSpecialDate()", L"Unable to add/remove date from special rule list.", 0,
                              CalendarOf(control), [&](CalendarModel &c) {
                                  const CDateTime day = DateArg(date);
                                  if (day.IsNull() && KeysOnDate(type))
                                      throw zk::InvalidArgException();
                                  const SSpecialRule rule(type, day, weekday, week, textColor, backColor);
                                  return c.SetSpecialRule(rule, add);
                              });
}

// The caller's type plays no part, and Show Special does not matter here.
int32_t ZKAPI ZelCalIsDateSpecial(ZelCalControl control, int32_t type, HostDateTime date, int32_t weekday,
                                  int32_t week) {
    return GuardedControlText(L"ZelCalIsDateSpecial()", L"Unable to determine if specified date is special.", 0,
                              CalendarOf(control), [&](CalendarModel &c) {
                                  const SSpecialRule probe(type, DateArg(date), weekday, week, 0, 0);
                                  return c.MatchSpecial(probe, nullptr, nullptr);
                              });
}

// Colours are not reported, and the type array keeps its bounds: that is
// how it stands.
int32_t ZKAPI ZelCalGetSpecials(ZelCalControl control, HostArray types, HostArray dates, HostArray weekdays,
                                HostArray weeks) {
    return GuardedControlText(L"ZelCalGetSpecials()", L"Unable to retrieve special weekdays.", -1, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  int32_t count = 0;
                                  for (const auto &entry : c.Rules()) {
                                      const SSpecialRule &rule = entry.second;
                                      SetNumber(types, rule.type, count);
                                      HostDateTime record{};
                                      CDateTime(rule.year, rule.month, rule.day, 0, 0, 0).GetRecord(&record);
                                      HostArraySetDateTime(dates, &record, count);
                                      SetNumber(weekdays, rule.weekday, count);
                                      SetNumber(weeks, rule.week, count);
                                      ++count;
                                  }
                                  HostArraySetBounds(dates, 0, count - 1);
                                  HostArraySetBounds(weekdays, 0, count - 1);
                                  HostArraySetBounds(weeks, 0, count - 1);
                                  return count;
                              });
}

} // extern "C"
