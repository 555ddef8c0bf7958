// The verdicts of the scenario: each step is logged, most also become a
// row of the form, and every failure counts towards the exit code.
#pragma once

#include <cstdint>
#include <string>

namespace gallery {

class Form;
class Log;

class Report {
public:
    Report(Log &log, Form *form) : log_(log), form_(form) {}

    void Section(const std::wstring &title);
    void Note(const std::wstring &text);

    // `shown` is what the form displays; `expected` goes to the log when
    // the step failed.
    bool Check(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected = {});
    // A step that is logged but has no row on the form.
    bool LogCheck(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected = {});

    bool Text(const std::wstring &label, const std::wstring &actual, const std::wstring &expected);
    bool Number(const std::wstring &label, int64_t actual, int64_t expected);
    bool Hex(const std::wstring &label, uint32_t actual, uint32_t expected);

    int Failures() const { return failures_; }
    int Passes() const { return passes_; }

private:
    bool Record(const std::wstring &label, const std::wstring &shown, bool ok, const std::wstring &expected,
                bool onForm);
    Log &log_;
    Form *form_;
    int failures_ = 0;
    int passes_ = 0;
};

// "text" in quotes, so that spaces at either end can be seen.
std::wstring Quote(const std::wstring &text);
std::wstring HexText(uint32_t value);

} // namespace gallery
