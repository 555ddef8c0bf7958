// Reading the usual date texts.
#include <climits>

#include "datetime.h"

namespace zkh {

namespace {

struct Fields {
    int year = 1899, month = 12, day = 30; // a time alone falls on day 0
    int hour = 0, minute = 0, second = 0, microsecond = 0;
};

class Cursor {
public:
    explicit Cursor(std::u16string_view text) : text_(text) {}

    size_t position() const { return pos_; }
    bool AtEnd() const { return pos_ == text_.size(); }
    char16_t peek() const { return AtEnd() ? u'\0' : text_[pos_]; }

    bool eat(char16_t c) {
        if (peek() != c)
            return false;
        ++pos_;
        return true;
    }
    // At least one space (or tab); false when there is none.
    bool spaces() {
        const size_t start = pos_;
        while (peek() == u' ' || peek() == u'\t')
            ++pos_;
        return pos_ != start;
    }
    // A whole run of digits whose length lies in [least, most].
    bool number(int least, int most, int64_t &value) {
        size_t end = pos_;
        while (end < text_.size() && text_[end] >= u'0' && text_[end] <= u'9')
            ++end;
        const size_t count = end - pos_;
        if (count < static_cast<size_t>(least) || count > static_cast<size_t>(most))
            return false;
        value = 0;
        for (; pos_ < end; ++pos_)
            value = value * 10 + (text_[pos_] - u'0');
        return true;
    }
    bool number(int least, int most, int &value) {
        int64_t wide = 0;
        if (!number(least, most, wide) || wide > INT_MAX)
            return false;
        value = static_cast<int>(wide);
        return true;
    }
    // A word of ASCII letters, matched without regard to case.
    bool word(std::u16string_view expected) {
        if (text_.size() - pos_ < expected.size())
            return false;
        for (size_t k = 0; k < expected.size(); ++k)
            if (lower(text_[pos_ + k]) != lower(expected[k]))
                return false;
        pos_ += expected.size();
        return true;
    }
    bool LetterFollows() const {
        const char16_t c = lower(peek());
        return c >= u'a' && c <= u'z';
    }

private:
    static char16_t lower(char16_t c) { return c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c; }

    std::u16string_view text_;
    size_t pos_ = 0;
};

// One to six digits, read as microseconds.
bool fraction(Cursor &c, int &micros) {
    const size_t start = c.position();
    int64_t value = 0;
    if (!c.number(1, 6, value))
        return false;
    for (size_t digits = c.position() - start; digits < 6; ++digits)
        value *= 10;
    micros = static_cast<int>(value);
    return true;
}

// h[h]:mm[:ss[.ffffff]] [AM|PM]
bool ColonTime(Cursor &c, Fields &f) {
    if (!c.number(1, 2, f.hour) || !c.eat(u':') || !c.number(2, 2, f.minute))
        return false;
    if (c.eat(u':')) {
        if (!c.number(2, 2, f.second))
            return false;
        if (c.eat(u'.') && !fraction(c, f.microsecond))
            return false;
    }
    Cursor probe = c;
    probe.spaces();
    const bool am = probe.word(u"AM"), pm = !am && probe.word(u"PM");
    if (am || pm) {
        if (probe.LetterFollows() || f.hour < 1 || f.hour > 12)
            return false;
        f.hour = f.hour % 12 + (pm ? 12 : 0);
        c = probe;
    }
    return f.hour <= 23;
}

// Nothing more, or spaces and a colon time.
bool OptionalTimeToEnd(Cursor &c, Fields &f) {
    if (c.AtEnd())
        return true;
    return c.spaces() && ColonTime(c, f) && c.AtEnd();
}

// yyyy-MM-dd, then nothing, "-hh.mm.ss[.ffffff]", or a space or T and a colon time.
bool IsoDate(Cursor c, Fields &f) {
    const bool negative = c.eat(u'-');
    int64_t year = 0;
    if (!c.number(4, 10, year) || !c.eat(u'-') || !c.number(1, 2, f.month) || !c.eat(u'-') || !c.number(1, 2, f.day))
        return false;
    year = negative ? -year : year;
    if (year < INT_MIN || year > INT_MAX)
        return false;
    f.year = static_cast<int>(year);
    if (c.AtEnd())
        return true;
    if (c.eat(u'-')) {
        if (!c.number(2, 2, f.hour) || !c.eat(u'.') || !c.number(2, 2, f.minute) || !c.eat(u'.') ||
            !c.number(2, 2, f.second))
            return false;
        if (c.eat(u'.') && !fraction(c, f.microsecond))
            return false;
        return c.AtEnd() && f.hour <= 23;
    }
    if (!c.eat(u'T') && !c.spaces())
        return false;
    return ColonTime(c, f) && c.AtEnd();
}

// MM/dd/yyyy [time]
bool UsDate(Cursor c, Fields &f) {
    return c.number(1, 2, f.month) && c.eat(u'/') && c.number(1, 2, f.day) && c.eat(u'/') && c.number(4, 4, f.year) &&
           OptionalTimeToEnd(c, f);
}

// A month by its English name or its first three letters.
bool MonthWord(Cursor &c, int &month) {
    for (int m = 1; m <= 12; ++m) {
        const std::u16string_view name = detail::MonthName(m);
        for (const std::u16string_view form : {name, name.substr(0, 3)}) {
            Cursor probe = c;
            if (probe.word(form) && !probe.LetterFollows()) {
                c = probe;
                month = m;
                return true;
            }
        }
    }
    return false;
}

// d MMMM yyyy [time]
bool DayMonthYear(Cursor c, Fields &f) {
    return c.number(1, 2, f.day) && c.spaces() && MonthWord(c, f.month) && c.spaces() && c.number(4, 4, f.year) &&
           OptionalTimeToEnd(c, f);
}

// MMMM d, yyyy [time]
bool MonthDayYear(Cursor c, Fields &f) {
    if (!MonthWord(c, f.month) || !c.spaces() || !c.number(1, 2, f.day))
        return false;
    c.spaces();
    const bool comma = c.eat(u',');
    if (!c.spaces() && !comma)
        return false;
    return c.number(4, 4, f.year) && OptionalTimeToEnd(c, f);
}

bool TimeAlone(Cursor c, Fields &f) { return ColonTime(c, f) && c.AtEnd(); }

bool valid(const Fields &f) {
    return f.month >= 1 && f.month <= 12 && f.day >= 1 && f.day <= DaysInMonth(f.year, f.month) && f.hour >= 0 &&
           f.hour <= 23 && f.minute >= 0 && f.minute <= 59 && f.second >= 0 && f.second <= 59;
}

std::u16string_view trimmed(std::u16string_view text) {
    auto space = [](char16_t ch) { return ch == u' ' || ch == u'\t'; };
    while (!text.empty() && space(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && space(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

bool DateParse(std::u16string_view text, HostDateTime &out) {
    out = HostDateTime{};
    const Cursor start(trimmed(text));
    using Form = bool (*)(Cursor, Fields &);
    for (const Form form : {IsoDate, UsDate, DayMonthYear, MonthDayYear, TimeAlone}) {
        Fields f;
        if (form(start, f)) {
            if (!valid(f))
                return false;
            out = DateFromParts(f.year, f.month, f.day, f.hour, f.minute, f.second, f.microsecond);
            return !DateIsNull(out);
        }
    }
    return false;
}

} // namespace zkh
